# Builds the projects in SOURCE against the install tree in PREFIX through find_package.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

file(REMOVE_RECURSE "${BUILD}")
ostrel_run(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BUILD}" -G "${GENERATOR}"
           "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DCMAKE_CXX_COMPILER=${CXX}"
           "-DCMAKE_CXX_FLAGS=${FLAGS}" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=FALSE)
ostrel_run(COMMAND "${CMAKE_COMMAND}" --build "${BUILD}")
