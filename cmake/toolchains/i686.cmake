# 32 bits, and doubles that are calculated with more bits than they hold. This machine's
# processor runs its programs itself, with the loader and the libraries of the platform.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(KYDATASTRUCTURE_TRIPLET i686-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR
    /usr/i686-linux-gnu/lib/ld-linux.so.2 --library-path /usr/i686-linux-gnu/lib)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
