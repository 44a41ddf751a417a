# pimvcard_add_test(NAME [LIBRARIES ...] [SOURCES ...] [SLOW ...]): adds an executable NAME from NAME.cpp, which is one
# ctest test. Cases that match a pattern after SLOW repeat the same work over many texts. They are a separate test,
# NAME.Slow, with the label slow. The file NAME.slow next to the executable contains the patterns.
function(pimvcard_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LIBRARIES;SOURCES;SLOW")
  add_executable(${name} ${name}.cpp ${test_SOURCES})
  pimvcard_optimise_test(${name})
  pimvcard_configure_product(${name})
  target_link_libraries(${name} PRIVATE PimManager::vCard pimvcard-test-main ${test_LIBRARIES})
  if(PIMVCARD_PRECOMPILED_HEADERS)
    target_precompile_headers(${name} REUSE_FROM pimvcard-test-main)
  endif()
  list(JOIN test_SLOW ":" slow)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}.slow "${slow}")
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1 --gtest_filter=-${slow})
  set_tests_properties(${name} PROPERTIES TIMEOUT 900)
  if(slow)
    add_test(NAME ${name}.Slow COMMAND ${name} --gtest_brief=1 --gtest_filter=${slow})
    set_tests_properties(${name}.Slow PROPERTIES LABELS slow TIMEOUT 1800 COST 100)
  endif()
endfunction()

# pimvcard_add_test_library(NAME [LIBRARIES ...] SOURCES ...): adds code that several tests use, compiled once. Its
# headers are in the folder of the tests.
function(pimvcard_add_test_library name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LIBRARIES;SOURCES")
  add_library(${name} STATIC ${test_SOURCES})
  pimvcard_optimise_test(${name})
  pimvcard_configure_product(${name})
  target_link_libraries(${name} PUBLIC pimvcard-test-main Qt${PIMVCARD_QT_VERSION}::Core ${test_LIBRARIES})
  if(PIMVCARD_PRECOMPILED_HEADERS)
    target_precompile_headers(${name} REUSE_FROM pimvcard-test-main)
  endif()
endfunction()

# Under an emulator, strong optimisation of the tests costs more time than it saves. The component keeps its options.
function(pimvcard_optimise_test target)
  if(CMAKE_CROSSCOMPILING)
    target_compile_options(${target} PRIVATE -O1)
  endif()
endfunction()

# Checks that a library exports the symbols in its list. A static library is checked as if it were shared. Coverage and
# sanitizers add symbols of their own, and another processor has other types.
function(pimvcard_add_symbols_test library)
  if(PIMVCARD_COVERAGE OR PIMVCARD_SANITIZERS OR CMAKE_CROSSCOMPILING)
    return()
  endif()
  set(shown ${library})
  if(NOT BUILD_SHARED_LIBS)
    set(shown ${library}-shown)
    add_library(${shown} SHARED $<TARGET_OBJECTS:${library}>)
    set_target_properties(${shown} PROPERTIES LINKER_LANGUAGE CXX)
  endif()
  add_test(NAME SymbolsTest.LibraryShowsWhatTheListSays/${library}
           COMMAND ${PROJECT_SOURCE_DIR}/scripts/support/symbols $<TARGET_FILE:${shown}>
                   ${PROJECT_SOURCE_DIR}/packaging/abi/lib${library}.symbols)
  set_tests_properties(SymbolsTest.LibraryShowsWhatTheListSays/${library} PROPERTIES LABELS symbols TIMEOUT 60)
endfunction()
