# The check of a page finds what is wrong with one.
execute_process(
  COMMAND ${PYTHON} -B ${HERE}/check_page.py tests/docs/faulty_page.md ${SNIPPETS} ${KYDATA}
  OUTPUT_VARIABLE came ERROR_VARIABLE came RESULT_VARIABLE status)
file(READ ${HERE}/faulty_page.faults expected)
if(NOT came STREQUAL expected OR status EQUAL 0)
  message(FATAL_ERROR "status ${status}, instead of the faults in faulty_page.faults:\n${came}")
endif()
