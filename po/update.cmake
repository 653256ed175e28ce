# Brings the template up to the sources and, with MERGE, every catalogue up to the template.
include("${CMAKE_CURRENT_LIST_DIR}/catalogues.cmake")

set(template "${CMAKE_CURRENT_LIST_DIR}/Gorm.pot")
catalogue_extract("${SOURCES}" "${SCRATCH}/Gorm.pot")
file(COPY_FILE "${SCRATCH}/Gorm.pot" "${template}" ONLY_IF_DIFFERENT)

if(MERGE)
  file(GLOB catalogues "${CMAKE_CURRENT_LIST_DIR}/*.po")
  foreach(catalogue IN LISTS catalogues)
    cmake_path(GET catalogue FILENAME name)
    catalogue_merge("${template}" "${catalogue}" "${CMAKE_CURRENT_LIST_DIR}/memory/${name}"
                    "${SCRATCH}/${name}")
    file(COPY_FILE "${SCRATCH}/${name}" "${catalogue}" ONLY_IF_DIFFERENT)
  endforeach()
endif()
