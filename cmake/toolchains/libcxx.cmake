# This machine, by clang with the standard library of LLVM. What is compiled with another
# standard library cannot be linked, so that GoogleTest is built from its sources.
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/packages)
