# 32 bits, char is unsigned.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(KYDATASTRUCTURE_TRIPLET arm-linux-gnueabihf)
# Some arguments are passed otherwise than by GCC 6, which nothing here was built by.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static -L /usr/arm-linux-gnueabihf)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
