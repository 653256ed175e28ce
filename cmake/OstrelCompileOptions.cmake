# How every target of the project is compiled: the interface target `ostrel_options`.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(ostrel_options INTERFACE)
target_compile_features(ostrel_options INTERFACE cxx_std_20)

# Contraction of a * b + c would make results depend on the compiler and the processor.
target_compile_options(ostrel_options INTERFACE
  -ffp-contract=off
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wfloat-equal -Woverloaded-virtual)

if(OSTREL_WARNINGS_AS_ERRORS)
  target_compile_options(ostrel_options INTERFACE -Werror)
endif()

if(OSTREL_SANITIZE)
  target_compile_options(ostrel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ostrel_options INTERFACE -fsanitize=address,undefined)
endif()

# The code of tests: what they test is optimised and has all sanitizers. Without them, but for the
# one of addresses, tests take half the time to compile.
add_library(ostrel_test_options INTERFACE)
if(OSTREL_SANITIZE AND NOT OSTREL_OPTIMISE_FUZZERS)
  target_compile_options(ostrel_test_options INTERFACE -O0 -fno-sanitize=undefined)
endif()
if(OSTREL_BUILD_FUZZERS)
  target_compile_options(ostrel_test_options INTERFACE -fno-sanitize=fuzzer-no-link)
endif()

# Counters in what is linked with `ostrel_counters`. Nothing is optimised there: each line is one.
add_library(ostrel_counters INTERFACE)
if(OSTREL_COUNT_LINES)
  target_compile_options(ostrel_counters INTERFACE -O0 --coverage -fprofile-update=atomic)
  target_link_options(ostrel_options INTERFACE --coverage)
endif()

# Everything tells the fuzzing programs which way it took; other programs take no notice.
if(OSTREL_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "OSTREL_BUILD_FUZZERS needs clang, and this is ${CMAKE_CXX_COMPILER_ID}")
  endif()
  target_compile_options(ostrel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
