# What every target of this project is compiled with.
function(pimvcard_configure target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
                                           -Wold-style-cast)
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

# As above, and text never comes from bytes without the code saying how.
function(pimvcard_configure_product target)
  pimvcard_configure(${target})
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_BYTEARRAY)
endfunction()

# The headers that nearly every source of a large library includes, compiled once. For builds that are there for the
# tests: others, and clang-tidy, still see a missing include.
function(pimvcard_precompile target)
  if(PIMVCARD_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} PRIVATE <QByteArray> <QList> <QString> <QStringList> <algorithm> <array>
                              <functional> <memory> <string> <string_view> <vector>)
  endif()
endfunction()
