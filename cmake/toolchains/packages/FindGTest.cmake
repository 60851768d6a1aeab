# Builds GoogleTest, for the platform and with the standard library of the tests, from the
# sources that its package brings.
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
if(NOT TARGET GTest::gtest)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()
set(GTest_FOUND TRUE)
