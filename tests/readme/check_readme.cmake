# The README quotes the first example and its output, and links to paths of the tree.
file(READ ${ROOT}/README.md readme)

file(READ ${ROOT}/examples/describe.cpp program)
string(FIND "${program}" "#include" begin)  # behind the file's own comment
string(SUBSTRING "${program}" ${begin} -1 program)
file(READ ${ROOT}/examples/describe.output output)
foreach(quoted program output)
  string(FIND "${readme}" "${${quoted}}" place)
  if(place LESS 0)
    message(FATAL_ERROR "README.md does not quote the example's ${quoted}:\n${${quoted}}")
  endif()
endforeach()

string(REPLACE "](" "@(" readme "${readme}")  # a bracket would open a list within the list
string(REGEX MATCHALL "@\\([^)]+\\)" links "${readme}")
list(LENGTH links count)
if(count LESS 10)
  message(FATAL_ERROR "README.md links to only ${count} paths")
endif()
foreach(link IN LISTS links)
  string(REGEX REPLACE "@\\(([^)]+)\\)" "\\1" path "${link}")
  if(NOT EXISTS ${ROOT}/${path})
    message(FATAL_ERROR "README.md links to ${path}, which is not there")
  endif()
endforeach()
