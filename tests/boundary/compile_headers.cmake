# Compiles every public header by itself, twice in one file, and the file of a small
# consumer; from C++17 on also that of one that uses ref.h. Called with COMPILER,
# STANDARD, INCLUDE, CONSUMER, REF_CONSUMER and WORK, a folder to write in.
file(GLOB headers RELATIVE ${INCLUDE} ${INCLUDE}/KyDataStructure/*.h)
set(sources ${CONSUMER})
if(STANDARD STREQUAL "c++14")
  list(REMOVE_ITEM headers KyDataStructure/ref.h)  # which says itself that it needs C++17
else()
  list(APPEND sources ${REF_CONSUMER})
endif()
list(LENGTH headers count)
if(count EQUAL 0)
  message(FATAL_ERROR "no headers in ${INCLUDE}")
endif()

file(MAKE_DIRECTORY ${WORK})
foreach(header IN LISTS headers)
  get_filename_component(name ${header} NAME_WE)
  file(WRITE ${WORK}/${name}.cpp "#include <${header}>\n#include <${header}>\n")
  list(APPEND sources ${WORK}/${name}.cpp)
endforeach()

execute_process(
  COMMAND ${COMPILER} -std=${STANDARD} -I${INCLUDE} -fsyntax-only -Wall -Wextra -Wpedantic
          -Wnon-virtual-dtor -Werror ${sources}
  RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "a header does not compile as ${STANDARD}")
endif()
message(STATUS "${count} headers and a consumer compile as ${STANDARD}")
