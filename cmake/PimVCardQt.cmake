# Which Qt everything is built with. A project that includes this one may set PIMVCARD_QT_VERSION; otherwise the version
# is the one that it has found itself.
if(NOT DEFINED PIMVCARD_QT_VERSION)
  set(PIMVCARD_QT_VERSION 5)
  if(TARGET Qt6::Core AND NOT TARGET Qt5::Core)
    set(PIMVCARD_QT_VERSION 6)
  endif()
endif()

# The oldest Qt that will do, and what the names of installed files end in, so that both builds fit into one prefix.
if(PIMVCARD_QT_VERSION STREQUAL 5)
  set(pimvcard_least_qt 5.15)
  set(pimvcard_name_suffix "")
elseif(PIMVCARD_QT_VERSION STREQUAL 6)
  set(pimvcard_least_qt 6.2)
  set(pimvcard_name_suffix -qt6)
else()
  message(FATAL_ERROR "PIMVCARD_QT_VERSION is \"${PIMVCARD_QT_VERSION}\", not 5 or 6")
endif()

# pimvcard_find_qt(COMPONENT...): a macro, because the targets are known where it is called.
macro(pimvcard_find_qt)
  find_package(Qt${PIMVCARD_QT_VERSION} ${pimvcard_least_qt} REQUIRED COMPONENTS ${ARGV})
endmacro()

pimvcard_find_qt(Core)

# moc runs on the machine that builds. A toolchain file names it where the Qt of the target brings only its own.
if(PIMVCARD_MOC)
  set_target_properties(Qt${PIMVCARD_QT_VERSION}::moc PROPERTIES IMPORTED_LOCATION ${PIMVCARD_MOC})
endif()
