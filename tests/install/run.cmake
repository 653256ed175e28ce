# ostrel_run(arguments of execute_process...)
#   Runs a command, which must succeed, and leaves what it printed in `output`.
function(ostrel_run)
  execute_process(${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE printed ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${printed}${errors}(${result})")
  endif()
  set(output "${printed}" PARENT_SCOPE)
endfunction()

# ostrel_expect(file)  compares what the last command printed with the text of a file.
function(ostrel_expect file)
  file(READ "${file}" expected)
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "Expected:\n${expected}\nPrinted:\n${output}")
  endif()
endfunction()
