# What the Linux platforms that this machine builds for have in common. Each file beside
# this one sets CMAKE_SYSTEM_PROCESSOR, KYDATASTRUCTURE_TRIPLET, which begins the names of
# its compilers and is that of its folder in /usr, and by what its programs run here.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${KYDATASTRUCTURE_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${KYDATASTRUCTURE_TRIPLET}-g++)
include(${CMAKE_CURRENT_LIST_DIR}/packages.cmake)
