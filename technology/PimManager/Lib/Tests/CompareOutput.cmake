# cmake -D COMMAND=... -D EXPECTED=FILE -P CompareOutput.cmake: does the command print just what the file holds?
execute_process(COMMAND ${COMMAND} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "Printed:\n${printed}\nExpected:\n${expected}")
endif()
