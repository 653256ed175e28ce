# Runs PROGRAM and compares what it prints with the file EXPECTED. LIBRARIES is where it finds
# libOstrel if it does not know by itself.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

if(LIBRARIES)
  set(ENV{LD_LIBRARY_PATH} "${LIBRARIES}")
endif()
ostrel_run(COMMAND "${PROGRAM}")
ostrel_expect("${EXPECTED}")
