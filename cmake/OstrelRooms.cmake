# A room is a folder: whatever source file lies in it is part of it.

# ostrel_platform_library(NAME [links...])
#   The static library of platform/NAME: sources in src/, headers in include/NAME/.
function(ostrel_platform_library name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/src/*.cpp")
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/include"
                                     PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/src")
  target_link_libraries(${name} PRIVATE ostrel_options ostrel_counters PUBLIC ${ARGN})
endfunction()

# ostrel_room(NAME)
#   Adds src/NAME to the core, if the room has sources yet.
function(ostrel_room name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp")
  target_sources(ostrel_core PRIVATE ${sources})
endfunction()

# ostrel_room_tests(NAME links...)
#   The program ostrel_NAME_tests of every *_test.cpp in tests/NAME, if there is one.
function(ostrel_room_tests name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${name}/*_test.cpp"
       "${CMAKE_CURRENT_SOURCE_DIR}/${name}/*_testing.cpp")
  if(NOT sources)
    return()
  endif()
  set(program "ostrel_${name}_tests")
  add_executable(${program} ${sources})
  set_target_properties(${program} PROPERTIES UNITY_BUILD OFF)  # tests share names of helpers
  target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/tests"
                                                "${PROJECT_SOURCE_DIR}/src")
  if(EXISTS "${PROJECT_SOURCE_DIR}/platform/${name}/src")
    target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/platform/${name}/src")
  endif()
  target_link_libraries(${program} PRIVATE ostrel_options ostrel_test_options ${ARGN} GTest::gmock_main)
  if(OSTREL_PRECOMPILE)
    target_precompile_headers(${program} REUSE_FROM ostrel_test_headers)
  endif()
  add_dependencies(${program} catalogues)
  if(OSTREL_TEST_EACH_CASE)
    gtest_discover_tests(${program} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
  else()
    add_test(NAME ${program} COMMAND ${program})
  endif()
endfunction()
