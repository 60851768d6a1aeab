# Sets RESULT to what a script calls to run the program TARGET: the program, or a command of
# its name that has the emulator run it where this machine cannot. (`add_test` does that by
# itself for a program that it is given as a target.)
function(kydatastructure_runnable target result)
  if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    set(${result} $<TARGET_FILE:${target}> PARENT_SCOPE)
    return()
  endif()
  set(command ${PROJECT_BINARY_DIR}/emulated/${target})
  set(${result} ${command} PARENT_SCOPE)
  get_target_property(written ${target} KYDATASTRUCTURE_RUNNABLE)
  if(NOT written)
    list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
    file(GENERATE OUTPUT ${command}
      CONTENT "#!/bin/sh\nexec ${emulator} $<TARGET_FILE:${target}> \"$@\"\n"
      FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                       WORLD_READ WORLD_EXECUTE)
    set_target_properties(${target} PROPERTIES KYDATASTRUCTURE_RUNNABLE TRUE)
  endif()
endfunction()
