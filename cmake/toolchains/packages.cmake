# Where a platform that is not this machine finds what the build needs: what has to be
# compiled among its own files, the headers that are the same everywhere and the sources of
# GoogleTest by the modules in `packages`, and programs that the build runs on this machine.
set(CMAKE_FIND_ROOT_PATH /usr/${KYDATASTRUCTURE_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/packages)
