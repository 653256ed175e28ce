# Builds SOURCE against the install tree in LIBRARIES through pkg-config, as the program PROGRAM.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

set(ENV{PKG_CONFIG_PATH} "${LIBRARIES}/pkgconfig")
ostrel_run(COMMAND "${PKG_CONFIG}" --cflags --libs Ostrel)
separate_arguments(package UNIX_COMMAND "${output}")
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
file(REMOVE "${PROGRAM}")
ostrel_run(COMMAND "${CXX}" ${flags} -o "${PROGRAM}" "${SOURCE}" ${package})
