# The Debian packages, which scripts/package makes by CPack: one for each component of the installation.
set(library_package libpimmanager-vcard${PIMVCARD_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_DEVEL_PACKAGE_NAME libpimmanager-vcard-dev)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME pimvcard)

foreach(component runtime devel tools)
  string(TOUPPER ${component} name)
  set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
  install(FILES packaging/debian/copyright DESTINATION ${documents} COMPONENT ${component})
  pimvcard_install_compressed(${PROJECT_SOURCE_DIR}/packaging/debian/changelog changelog ${documents} ${component})
endforeach()

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "vCard 2.1 and 3.0 reader")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Reads the address books that phones and desktop programs write, and turns
them into contacts. A broken card is reported and left out; the cards round
it are kept. The second library reads books as they are found and reports what
became of every byte.
.
This package holds the libraries.")
set(CPACK_COMPONENT_DEVEL_DESCRIPTION "Headers, CMake package and pkg-config files, to compile programs that read
address books in vCard format.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "Lists, shows and checks address books in vCard format, and writes contacts and
pictures, also of messy books, as JSON or as a page for a browser.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVEL_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)

# The libraries of others are found by what the files need. Ours go with the version to the letter.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/technology/PimManager/Lib
                                                ${PROJECT_BINARY_DIR}/technology/PimManager/Contacts)
set(CPACK_DEBIAN_DEVEL_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVEL_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pimmanager-vcard)
set(CPACK_PACKAGE_CONTACT "PimManager developers <pimmanager@example.invalid>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime devel tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
