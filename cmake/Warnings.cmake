# The warnings that the whole tree is free of.
function(kydatastructure_warn target)
  if(KYDATASTRUCTURE_SPELL_OUT_WARNINGS)
    target_compile_options(
      ${target}
      PRIVATE -Werror
              -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              -Wsign-conversion
              -Wold-style-cast
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              -Wcast-align
              -Wundef
              -Wformat=2)
  endif()
endfunction()
