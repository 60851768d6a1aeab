# Compares the names that LIBRARY exports with those in the file NAMES. Called with NM; for
# a DLL with OBJDUMP and CXXFILT.
if(OBJDUMP)
  # The table is told between other things: number and name of each entry.
  execute_process(
    COMMAND ${OBJDUMP} --private-headers ${LIBRARY}
    COMMAND sed -n "/Name Pointer\\] Table/,/^$/s/^\t\\[ *\\([0-9]*\\)\\] /\\1 E /p"
    COMMAND ${CXXFILT}
    RESULTS_VARIABLE failed
    OUTPUT_VARIABLE symbols)
else()
  execute_process(
    COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
    RESULTS_VARIABLE failed
    OUTPUT_VARIABLE symbols)
endif()
if(NOT failed MATCHES "^0(;0)*$" OR symbols STREQUAL "")
  message(FATAL_ERROR "cannot read ${LIBRARY}")
endif()

# A constructor or destructor is there twice, once for use as a base.
string(REPLACE "[" "(" symbols "${symbols}")
string(REPLACE "]" ")" symbols "${symbols}")
string(REGEX REPLACE "[ \n]+$" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
set(exported "")
foreach(symbol IN LISTS symbols)
  if(NOT symbol MATCHES "^[0-9a-fA-F]+ [A-Za-z] (.+)$")
    message(FATAL_ERROR "what is '${symbol}'?")
  endif()
  list(APPEND exported "${CMAKE_MATCH_1}")
endforeach()
list(REMOVE_DUPLICATES exported)

file(STRINGS ${NAMES} wanted REGEX "^[^#]")

set(missing ${wanted})
list(REMOVE_ITEM missing ${exported})
set(surplus ${exported})
list(REMOVE_ITEM surplus ${wanted})
list(LENGTH exported count)
message(STATUS "${count} exported names")
foreach(name IN LISTS missing)
  message(STATUS "missing: ${name}")
endforeach()
foreach(name IN LISTS surplus)
  message(STATUS "not in the list: ${name}")
endforeach()
if(missing OR surplus)
  message(FATAL_ERROR "the exported names are not those of the list")
endif()
