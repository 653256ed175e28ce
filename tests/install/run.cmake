# ostrel_run(arguments of execute_process...)  runs a command and stops with its words if it fails.
macro(ostrel_run)
  execute_process(${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}${errors}(${result})")
  endif()
endmacro()

# ostrel_expect(file)  compares what the last command printed with the text of a file.
macro(ostrel_expect file)
  file(READ "${file}" expected)
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "Expected:\n${expected}\nPrinted:\n${output}")
  endif()
endmacro()
