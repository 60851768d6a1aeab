# Writes the module definition file DEFINITION, which exports each name of the file NAMES
# under all names that the compiler gave it in the OBJECTS: a constructor has two. Called
# with NM.

cmake_minimum_required(VERSION 3.25)

# The same list twice, in the same order: as the linker knows the names, and as people do.
foreach(form IN ITEMS mangled demangled)
  set(demangle "")
  if(form STREQUAL "demangled")
    set(demangle --demangle)
  endif()
  execute_process(
    COMMAND ${NM} --defined-only --extern-only --no-sort ${demangle} ${OBJECTS}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "[][;]" "?" symbols "${symbols}")  # which are no part of an exported name
  string(REPLACE "\n" ";" ${form} "${symbols}")
endforeach()

file(STRINGS ${NAMES} names REGEX "^[^#]")
set(missing ${names})
set(lines "")
foreach(raw name IN ZIP_LISTS mangled demangled)
  if(NOT name MATCHES "^[0-9a-f]+ ([A-Za-z]) (.+)$")
    continue()
  endif()
  set(kind ${CMAKE_MATCH_1})
  if(NOT CMAKE_MATCH_2 IN_LIST names)
    continue()
  endif()
  list(REMOVE_ITEM missing "${CMAKE_MATCH_2}")
  string(REGEX REPLACE "^[0-9a-f]+ [A-Za-z] " "  " line "${raw}")
  if(NOT kind STREQUAL "T")
    string(APPEND line " DATA")
  endif()
  list(APPEND lines "${line}")
endforeach()
if(missing)
  list(JOIN missing ", " missing)
  message(FATAL_ERROR "no object defines ${missing}")
endif()

list(REMOVE_DUPLICATES lines)
list(SORT lines)
list(JOIN lines "\n" lines)
file(CONFIGURE OUTPUT ${DEFINITION} @ONLY CONTENT "EXPORTS\n@lines@\n")
