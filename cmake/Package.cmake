# Debian packages, one for each installed component. They are made by scripts/package,
# which configures with what packages alone need: the system's prefix and no run path.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kydatastructure)
set(CPACK_PACKAGE_VENDOR KyDataStructure)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each component has its own
set(CPACK_PACKAGE_CONTACT "KyDataStructure maintainers <maintainers@kydatastructure.invalid>"
    CACHE STRING "The maintainer that the packages name")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(runtime_package libkydatastructure${PROJECT_VERSION_MAJOR})
set(CPACK_COMPONENTS_ALL Runtime Development Tools)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianFiles.cmake)
set(CPACK_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)

# What the library and kydata need is read from them. Packages of programs that link the
# library read from its package which one they need.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "data model of a video editor's business layer - library
Reference-counted objects behind abstract interfaces, typed lists, parameter
and effect records, resource descriptions, and readers that turn JSON replies
into cut scripts and analysis reports.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkydatastructure-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "data model of a video editor's business layer - development files
The headers of KyDataStructure, what CMake and pkg-config need to find it, and
what debuggers show its objects by.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME kydata)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION video)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (>= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "show what the texts of a video editor's data model hold
Reads resource descriptions, cut replies, analysis reports, storyboards and
parameter maps as KyDataStructure does, and prints or draws what it makes of
them.")

include(CPack)
