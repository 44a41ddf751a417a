# The installation. It has three components: runtime (the shared libraries), devel (the files for compiling and linking
# programs) and tools (the program). No installed file contains the prefix, so the folder can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(pimvcard_package PimManagerVCard)
if(PIMVCARD_QT_VERSION STREQUAL 6)
  set(pimvcard_package PimManagerVCardQt6)
endif()
set(pimvcard_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${pimvcard_package})

# All headers are installed into include/PimManager/NAME. A library that has them in Include/PimManager/NAME includes them
# as <PimManager/NAME/...> only. The headers of any other library can also be included by their names alone.
function(pimvcard_install_library target name)
  set(headers ${CMAKE_INSTALL_INCLUDEDIR})
  set(include_folders ${CMAKE_INSTALL_INCLUDEDIR})
  if(NOT IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/Include/PimManager/${name})
    string(APPEND headers /PimManager/${name})
    list(APPEND include_folders ${headers})
  endif()
  install(TARGETS ${target} EXPORT ${pimvcard_package}Targets
          LIBRARY COMPONENT runtime NAMELINK_COMPONENT devel
          ARCHIVE COMPONENT devel
          INCLUDES DESTINATION ${include_folders})
  install(DIRECTORY Include/ DESTINATION ${headers} COMPONENT devel
          FILES_MATCHING PATTERN "Pim*.h" PATTERN Test EXCLUDE)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  pimvcard_install_pkg_config_file(${target})
  if(BUILD_SHARED_LIBS AND PIMVCARD_INSTALL_STATIC)
    pimvcard_install_static_library(${target})
  endif()
endfunction()

# The same objects as a static library. The CMake package does not name it.
function(pimvcard_install_static_library target)
  add_library(${target}-static STATIC $<TARGET_OBJECTS:${target}>)
  set_target_properties(${target}-static PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME ${target}${pimvcard_name_suffix})
  install(TARGETS ${target}-static ARCHIVE COMPONENT devel)
endfunction()

# pkg-config derives the prefix from the location of the file. It recognises /usr/include, which must not be passed to a
# compiler again, only by this name. So files for /usr name the prefix.
function(pimvcard_install_pkg_config_file library)
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH way_to_prefix /${folder} /)
  set(prefix "\${pcfiledir}/${way_to_prefix}")
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(prefix /usr)
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${library}.pc.in
                 ${PROJECT_BINARY_DIR}/${library}${pimvcard_name_suffix}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${library}${pimvcard_name_suffix}.pc DESTINATION ${folder} COMPONENT devel)
endfunction()

function(pimvcard_install_program target)
  install(TARGETS ${target} RUNTIME COMPONENT tools)
  file(RELATIVE_PATH way_to_libraries /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${way_to_libraries}")
  install(FILES ${PROJECT_SOURCE_DIR}/docs/man/${target}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  install(FILES Completion/${target}.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME ${target} COMPONENT tools)
  install(FILES Completion/_${target} DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tools)
endfunction()

function(pimvcard_install_package)
  install(EXPORT ${pimvcard_package}Targets NAMESPACE PimManager:: DESTINATION ${pimvcard_package_folder} COMPONENT devel)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/PimManagerVCardConfig.cmake.in
                 ${PROJECT_BINARY_DIR}/${pimvcard_package}Config.cmake @ONLY)
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/${pimvcard_package}ConfigVersion.cmake
                                   COMPATIBILITY SameMajorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/${pimvcard_package}Config.cmake
                ${PROJECT_BINARY_DIR}/${pimvcard_package}ConfigVersion.cmake
          DESTINATION ${pimvcard_package_folder} COMPONENT devel)
endfunction()
