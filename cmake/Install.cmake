# What is installed where, in three components: Runtime is what a program needs to run,
# Development what it needs to be built, Tools is kydata. Nothing installed names a
# folder of the machine that it was built on; the whole prefix may be moved.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KyDataStructure)

install(
  TARGETS KyDataStructure
  EXPORT KyDataStructure
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})  # for callers whose CMake knows no file sets

# The library needs no other package of its callers, so the targets are all there is to
# find.
install(
  EXPORT KyDataStructure
  NAMESPACE KyDataStructure::
  FILE KyDataStructureConfig.cmake
  DESTINATION ${package_dir}
  COMPONENT Development)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/KyDataStructureConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES ${PROJECT_BINARY_DIR}/KyDataStructureConfigVersion.cmake
  DESTINATION ${package_dir}
  COMPONENT Development)

if(TARGET kydata)
  file(RELATIVE_PATH library_dir ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(kydata PROPERTIES INSTALL_RPATH "$ORIGIN/${library_dir}")
  install(TARGETS kydata RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Tools)
endif()
if(TARGET kydata_manual)
  install(
    FILES $<TARGET_PROPERTY:kydata_manual,PAGE>
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT Tools)
  install(
    FILES ${PROJECT_SOURCE_DIR}/tools/kydata/completion/kydata.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME kydata
    COMPONENT Tools)
endif()

# pkg-config finds the prefix from where its file lies.
set(pkgconfig_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${pkgconfig_dir}
           OUTPUT_VARIABLE PREFIX_FROM_PC)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
           OUTPUT_VARIABLE LIBDIR_FROM_PREFIX)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
           OUTPUT_VARIABLE INCLUDEDIR_FROM_PREFIX)
configure_file(${CMAKE_CURRENT_LIST_DIR}/KyDataStructure.pc.in KyDataStructure.pc @ONLY)
install(
  FILES ${PROJECT_BINARY_DIR}/KyDataStructure.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT Development)

# What debuggers show objects by.
install(
  FILES ${PROJECT_SOURCE_DIR}/debugger/KyDataStructure.natvis
  DESTINATION ${CMAKE_INSTALL_DATADIR}/KyDataStructure
  COMPONENT Development)

# gdb finds its printers by the full path of the library, which is known when it is
# installed.
if(UNIX)
  install(
    FILES ${PROJECT_SOURCE_DIR}/debugger/KyDataStructure-gdb.py
    DESTINATION
      "${CMAKE_INSTALL_DATADIR}/gdb/auto-load\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}"
    RENAME $<TARGET_FILE_NAME:KyDataStructure>-gdb.py
    COMPONENT Development)
endif()
