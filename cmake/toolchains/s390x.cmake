# 64 bits, the most significant byte first, char is unsigned.
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(KYDATASTRUCTURE_TRIPLET s390x-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-s390x-static -L /usr/s390x-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
