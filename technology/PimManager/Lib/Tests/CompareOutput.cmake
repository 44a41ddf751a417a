# cmake -D COMMAND=... -D EXPECTED=FILE -P CompareOutput.cmake: fails if the output of the command differs from the file.
execute_process(COMMAND ${COMMAND} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "Printed:\n${printed}\nExpected:\n${expected}")
endif()
