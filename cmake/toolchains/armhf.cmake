# 32 bits, char is unsigned.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(KYDATASTRUCTURE_TRIPLET arm-linux-gnueabihf)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static -L /usr/arm-linux-gnueabihf)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
