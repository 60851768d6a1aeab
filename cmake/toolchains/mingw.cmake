# Windows, by MinGW's g++ with POSIX threads: long has 32 bits. Its programs run under wine,
# with the compiler's own libraries beside them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(KYDATASTRUCTURE_TRIPLET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${KYDATASTRUCTURE_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${KYDATASTRUCTURE_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${KYDATASTRUCTURE_TRIPLET}-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/wine.sh ${CMAKE_CXX_COMPILER} ${CMAKE_BINARY_DIR})
include(${CMAKE_CURRENT_LIST_DIR}/packages.cmake)
