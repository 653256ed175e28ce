# The libraries that appear in the public headers, as imported targets. This file serves the build
# and is installed beside the package configuration, which includes it.

# The build stops without one of them; a package configuration says that it cannot be used.
macro(ostrel_need)
  if(CMAKE_FIND_PACKAGE_NAME STREQUAL "Ostrel")
    find_dependency(${ARGN})
  else()
    find_package(${ARGN} REQUIRED)
  endif()
endmacro()

ostrel_need(Armadillo 11)
if(NOT TARGET Ostrel::Armadillo)
  add_library(Ostrel::Armadillo INTERFACE IMPORTED)
  set_target_properties(Ostrel::Armadillo PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${ARMADILLO_INCLUDE_DIRS}"
    INTERFACE_LINK_LIBRARIES "${ARMADILLO_LIBRARIES}")
endif()

ostrel_need(OpenSceneGraph 3.6)
if(NOT TARGET Ostrel::OpenSceneGraph)
  add_library(Ostrel::OpenSceneGraph INTERFACE IMPORTED)
  set_target_properties(Ostrel::OpenSceneGraph PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${OPENSCENEGRAPH_INCLUDE_DIRS}"
    INTERFACE_LINK_LIBRARIES "${OPENSCENEGRAPH_LIBRARIES}")
endif()
