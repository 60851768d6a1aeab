# Each row of docs/behaviours.md names tests, and each of them stands in a source of the tests.

cmake_minimum_required(VERSION 3.25)

set(fewest_rows 230)

# The names that the sources define, as Suite.Case. Of a source only what a macro of a test
# has in its round brackets is looked at, so that no other character can split a list.
file(GLOB_RECURSE sources ${ROOT}/tests/*.cpp ${ROOT}/tests/*.h)
set(defined "")
foreach(source IN LISTS sources)
  file(READ ${source} text)
  string(REGEX MATCHALL "TEST(_F|_P)?\\([ \n]*[A-Za-z0-9_]+,[ \n]*[A-Za-z0-9_]+\\)" macros
         "${text}")
  foreach(macro IN LISTS macros)
    string(REGEX REPLACE "^.*\\([ \n]*([A-Za-z0-9_]+),[ \n]*([A-Za-z0-9_]+)\\)$" "\\1.\\2" name
           "${macro}")
    list(APPEND defined ${name})
  endforeach()
endforeach()
list(LENGTH defined count)
if(count LESS 100)
  message(FATAL_ERROR "only ${count} tests were found in the sources")
endif()

# Brackets and semicolons would join or split lines once they are a list.
file(READ ${ROOT}/docs/behaviours.md table)
string(REGEX REPLACE "[][;\\]" "." table "${table}")
string(REPLACE "\n" ";" lines "${table}")

set(rows 0)
set(behaviours "")
set(faults "")
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^\\|" OR line MATCHES "^\\| behaviour \\|" OR line MATCHES "^\\|---")
    continue()
  endif()
  if(NOT line MATCHES "^\\| ([^|]+) \\| ([^|]+) \\|$")
    string(APPEND faults "\nnot a row of two cells: ${line}")
    continue()
  endif()
  set(behaviour "${CMAKE_MATCH_1}")
  string(REPLACE ", " ";" names "${CMAKE_MATCH_2}")
  math(EXPR rows "${rows} + 1")
  if(behaviour IN_LIST behaviours)
    string(APPEND faults "\nstands twice: ${behaviour}")
  endif()
  list(APPEND behaviours "${behaviour}")
  foreach(name IN LISTS names)
    if(NOT name IN_LIST defined)
      string(APPEND faults "\nno such test: ${name}")
    endif()
  endforeach()
endforeach()

if(rows LESS fewest_rows)
  string(APPEND faults "\n${rows} rows instead of at least ${fewest_rows}")
endif()
if(faults)
  message(FATAL_ERROR "docs/behaviours.md:${faults}")
endif()
