# Run by cpack between staging the components and packing them. Adds what Debian wants to
# see in every package: the changelog of this version in Debian's form; and compresses it
# and the manual pages.

file(READ ${CPACK_CHANGELOG} changes)
if(NOT changes MATCHES "\n## ${CPACK_PACKAGE_VERSION}\n\n([^#]+)")
  message(FATAL_ERROR "${CPACK_CHANGELOG} has nothing about ${CPACK_PACKAGE_VERSION}")
endif()
string(REGEX REPLACE "(^|\n)- " "\\1  * " changes "${CMAKE_MATCH_1}")
string(REGEX REPLACE "(^|\n)  ([^*])" "\\1    \\2" changes "${changes}")
string(STRIP "${changes}" changes)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog "${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium\n\n  \
${changes}\n\n -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX})
  set(doc ${root}/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  file(WRITE ${doc}/changelog "${changelog}")
  file(GLOB pages ${root}/share/man/man*/*)
  execute_process(COMMAND gzip -9 --no-name ${doc}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
