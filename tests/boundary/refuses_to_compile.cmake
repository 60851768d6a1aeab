# Compiles SOURCE, which must succeed, and then once more with DEFINE, which must fail
# for the REASON that the compiler tells. Also called with COMPILER and INCLUDE.
set(command ${COMPILER} -std=c++17 -I${INCLUDE} -fsyntax-only)
execute_process(COMMAND ${command} ${SOURCE} RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "does not compile as it should")
endif()

execute_process(COMMAND ${command} -D${DEFINE} ${SOURCE} RESULT_VARIABLE failed ERROR_VARIABLE said)
if(NOT failed)
  message(FATAL_ERROR "compiles with ${DEFINE}")
endif()
if(NOT said MATCHES "${REASON}")
  message(FATAL_ERROR "refused for another reason than '${REASON}':\n${said}")
endif()
message(STATUS "refused with ${DEFINE}: ${REASON}")
