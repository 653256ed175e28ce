# The libraries that appear in the public headers, as imported targets. This file serves the build
# and is installed beside the package configuration, which includes it.

find_package(Armadillo 11 REQUIRED)
if(NOT TARGET Ostrel::Armadillo)
  add_library(Ostrel::Armadillo INTERFACE IMPORTED)
  set_target_properties(Ostrel::Armadillo PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${ARMADILLO_INCLUDE_DIRS}"
    INTERFACE_LINK_LIBRARIES "${ARMADILLO_LIBRARIES}")
endif()

find_package(OpenSceneGraph 3.6 REQUIRED)
if(NOT TARGET Ostrel::OpenSceneGraph)
  add_library(Ostrel::OpenSceneGraph INTERFACE IMPORTED)
  set_target_properties(Ostrel::OpenSceneGraph PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${OPENSCENEGRAPH_INCLUDE_DIRS}"
    INTERFACE_LINK_LIBRARIES "${OPENSCENEGRAPH_LIBRARIES}")
endif()
