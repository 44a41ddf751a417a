# pimvcard_add_fuzz_target(NAME SOURCE [LIBRARIES ...]): adds the fuzz target in SOURCE, with a main function that
# replays files and, if the fuzzers are built, with libFuzzer. Its seeds are in Corpus/NAME, and former findings in Findings/NAME if
# there are any; ctest replays both.
function(pimvcard_add_fuzz_target name source)
  cmake_parse_arguments(PARSE_ARGV 2 target "" "" "LIBRARIES")
  add_executable(pimvcard-replay-${name} ${source} Source/ReplayProgram.cpp)
  set(programs pimvcard-replay-${name})
  if(PIMVCARD_BUILD_FUZZERS)
    add_executable(pimvcard-fuzz-${name} ${source})
    target_link_options(pimvcard-fuzz-${name} PRIVATE -fsanitize=fuzzer)
    list(APPEND programs pimvcard-fuzz-${name})
  endif()
  foreach(program ${programs})
    target_link_libraries(${program} PRIVATE pimvcard-fuzz-checks ${target_LIBRARIES})
    pimvcard_configure_product(${program})
  endforeach()
  if(PIMVCARD_BUILD_TESTS)
    pimvcard_add_replay_tests(${name})
  endif()
endfunction()

# All files are replayed, and a folder without files is an error.
function(pimvcard_add_replay_tests name)
  set(seeds ${CMAKE_CURRENT_SOURCE_DIR}/Corpus/${name})
  set(empty ${CMAKE_CURRENT_BINARY_DIR}/Empty)
  file(MAKE_DIRECTORY ${empty})
  file(GLOB findings CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/Findings/${name})
  add_test(NAME FuzzReplayTest.EveryPropertyHolds/${name} COMMAND pimvcard-replay-${name} ${seeds} ${findings})
  add_test(NAME FuzzReplayTest.EmptyFolderFails/${name} COMMAND pimvcard-replay-${name} ${seeds} ${empty})
  set_tests_properties(FuzzReplayTest.EmptyFolderFails/${name} PROPERTIES
    PASS_REGULAR_EXPRESSION "there is no input in .*/Empty" FAIL_REGULAR_EXPRESSION "inputs tried")
endfunction()
