# pimvcard_add_test(NAME [LIBRARIES ...] [SOURCES ...]): an executable NAME from NAME.cpp, each of its cases a ctest test.
# Under an emulator, where starting a program takes long, all its cases are one test.
function(pimvcard_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LIBRARIES;SOURCES")
  add_executable(${name} ${name}.cpp ${test_SOURCES})
  pimvcard_configure_product(${name})
  target_link_libraries(${name} PRIVATE PimManager::vCard pimvcard-test-main ${test_LIBRARIES})
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 900)
  else()
    gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()
