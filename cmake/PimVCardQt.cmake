# The Qt version of the build. A project that includes this one may set PIMVCARD_QT_VERSION. The default is the version
# that it has already found.
if(NOT DEFINED PIMVCARD_QT_VERSION)
  set(PIMVCARD_QT_VERSION 5)
  if(TARGET Qt6::Core AND NOT TARGET Qt5::Core)
    set(PIMVCARD_QT_VERSION 6)
  endif()
endif()

# The oldest supported Qt, and the suffix of the names of installed files, so that both builds fit into one prefix.
if(PIMVCARD_QT_VERSION STREQUAL 5)
  set(pimvcard_least_qt 5.15)
  set(pimvcard_name_suffix "")
elseif(PIMVCARD_QT_VERSION STREQUAL 6)
  set(pimvcard_least_qt 6.2)
  set(pimvcard_name_suffix -qt6)
else()
  message(FATAL_ERROR "PIMVCARD_QT_VERSION is \"${PIMVCARD_QT_VERSION}\", not 5 or 6")
endif()

# pimvcard_find_qt(COMPONENT...): a macro, so that the targets are visible to the caller.
macro(pimvcard_find_qt)
  find_package(Qt${PIMVCARD_QT_VERSION} ${pimvcard_least_qt} REQUIRED COMPONENTS ${ARGV})
endmacro()

pimvcard_find_qt(Core)

# moc runs on the build machine. A toolchain file names it if the Qt of the target has only a moc for the target.
if(PIMVCARD_MOC)
  set_target_properties(Qt${PIMVCARD_QT_VERSION}::moc PROPERTIES IMPORTED_LOCATION ${PIMVCARD_MOC})
endif()
