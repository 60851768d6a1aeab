# Builds everything with the sanitizers that the preset names. A finding ends the
# program, so that a test with one fails.
if(KYDATASTRUCTURE_SANITIZE)
  add_compile_options(-fsanitize=${KYDATASTRUCTURE_SANITIZE} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KYDATASTRUCTURE_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # In code that it has instrumented itself, g++ takes the slots of temporaries for
    # variables without a value. The builds without sanitizers keep the warning.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

# What a test sets in its environment for the sanitizers.
set(KYDATASTRUCTURE_TEST_ENVIRONMENT
    "ASAN_OPTIONS=detect_stack_use_after_return=1"
    "UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1:suppressions='${PROJECT_SOURCE_DIR}/cmake/ubsan.supp'"
    "TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1")
