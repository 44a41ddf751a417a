# pimvcard_add_test(NAME [LIBRARIES ...] [SOURCES ...]): an executable NAME from NAME.cpp, each of its cases a ctest test.
function(pimvcard_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LIBRARIES;SOURCES")
  add_executable(${name} ${name}.cpp ${test_SOURCES})
  pimvcard_configure_product(${name})
  target_link_libraries(${name} PRIVATE PimManager::vCard GTest::gtest_main ${test_LIBRARIES})
  gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
