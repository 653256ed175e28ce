# Installs the build tree BUILD below ROOT and then moves the whole: nothing in it may depend on
# where it lay.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

file(REMOVE_RECURSE "${ROOT}")
ostrel_run(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${ROOT}/first place")
file(RENAME "${ROOT}/first place" "${PREFIX}")
