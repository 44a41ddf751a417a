# CMake puts CMAKE_CXX_FLAGS before the flags of the build type and before ours. The user's flags must have priority, so
# they are repeated at the end.
if(PimManagerVCard_IS_TOP_LEVEL)
  string(REPLACE "<FLAGS>" "<FLAGS> ${CMAKE_CXX_FLAGS}" CMAKE_CXX_COMPILE_OBJECT "${CMAKE_CXX_COMPILE_OBJECT}")
endif()

# The compiler options of every target of this project.
function(pimvcard_configure target)
  if(PimManagerVCard_IS_TOP_LEVEL)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
                                             -Wold-style-cast)
  endif()
  if(PIMVCARD_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(PIMVCARD_SANITIZERS)
    target_compile_options(${target} PRIVATE -fsanitize=${PIMVCARD_SANITIZERS} -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${PIMVCARD_SANITIZERS})
  endif()
  if(PIMVCARD_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-abs-path)
    target_link_options(${target} PRIVATE --coverage)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
endfunction()

# As above, and without implicit conversions from bytes to text.
function(pimvcard_configure_product target)
  pimvcard_configure(${target})
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_BYTEARRAY)
endfunction()

# Precompiles the headers that nearly every source of a large library includes. Only for test builds, so that other
# builds and clang-tidy still find a missing include.
function(pimvcard_precompile target)
  if(PIMVCARD_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} PRIVATE <QByteArray> <QList> <QString> <QStringList> <algorithm> <array>
                              <functional> <memory> <string> <string_view> <vector>)
  endif()
endfunction()

# pimvcard_configure_library(TARGET NAME): configures a library that is installed as PimManager::NAME, with its headers
# in Include. A shared library exports only what is marked with PIMVCARD_EXPORT, PIMCONTACT_EXPORT or PIMPHONEBOOK_EXPORT.
function(pimvcard_configure_library target name)
  pimvcard_configure_product(${target})
  add_library(PimManager::${name} ALIAS ${target})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/Include> PRIVATE Source)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    OUTPUT_NAME ${target}${pimvcard_name_suffix}
    PIMVCARD_QT_VERSION ${PIMVCARD_QT_VERSION}
    EXPORT_PROPERTIES PIMVCARD_QT_VERSION
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PIMVCARD_SOVERSION}
    DEFINE_SYMBOL ""
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  if(PIMVCARD_INSTALL)
    pimvcard_install_library(${target} ${name})
  endif()
endfunction()
