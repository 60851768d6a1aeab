# Fails when LIBRARY runs code of its own while it is loaded. Called with NM, READELF (not for
# a DLL, whose table has the start of its C library), POINTER_SIZE and SANITIZE, what the
# build was told to check.
if(SANITIZE)
  message(STATUS "skipped: '-fsanitize=${SANITIZE}' adds start-up code")
  return()
endif()

# The compiler puts functions of its own into the table: frame_dummy, and on 64-bit ARM one
# that asks which atomic instructions the processor has.
set(bytes 0)
set(dynamic "")
if(READELF)
  execute_process(
    COMMAND ${READELF} --dynamic --wide ${LIBRARY}
    OUTPUT_VARIABLE dynamic
    COMMAND_ERROR_IS_FATAL ANY)
endif()
if(dynamic MATCHES "\\(INIT_ARRAYSZ\\) +([0-9]+)")
  set(bytes ${CMAKE_MATCH_1})
endif()

# The names that compilers give to the initialisers of a source file.
execute_process(
  COMMAND ${NM} --defined-only ${LIBRARY}
  OUTPUT_VARIABLE symbols
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(_GLOBAL__(sub_)?I_|__cxx_global_var_init|_Z41__static_init)[^\n]*"
  initialisers "${symbols}")
string(REGEX MATCHALL " [tT] (frame_dummy|init_have_lse_atomics)\n" own "${symbols}")
list(LENGTH own own)
math(EXPR own_bytes "${own} * ${POINTER_SIZE}")

message(STATUS "start-up table of ${bytes} bytes; initialisers: ${initialisers}")
if(bytes GREATER own_bytes OR initialisers)
  message(FATAL_ERROR "the library has start-up code")
endif()
