# Sets RESULT to a folder that holds one folder of this machine's /usr/include and nothing
# else of it: the other headers there are those of this machine's own libraries.
function(kydatastructure_headers_only folder result)
  set(headers ${CMAKE_BINARY_DIR}/headers_only/${folder})
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "there is no /usr/include/${folder}")
  endif()
  file(MAKE_DIRECTORY ${headers})
  file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
  set(${result} ${headers} PARENT_SCOPE)
endfunction()
