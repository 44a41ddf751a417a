# Extracts C++ examples from documents, each into its own source. Each source includes the header that the variable
# surroundings names.

# pimvcard_add_code_examples(TARGET SURROUNDINGS [HEADERS ...] [DOCUMENTS ...] [LIBRARIES ...]): compiles the examples of
# public headers and of Markdown documents.
function(pimvcard_add_code_examples target surroundings)
  cmake_parse_arguments(PARSE_ARGV 2 code "" "" "HEADERS;DOCUMENTS;LIBRARIES")
  set(examples "")
  foreach(header IN LISTS code_HEADERS)
    pimvcard_header_examples(${header} examples)
  endforeach()
  foreach(document IN LISTS code_DOCUMENTS)
    pimvcard_markdown_examples(${document} examples)
  endforeach()
  add_library(${target} OBJECT ${examples} ${surroundings})
  pimvcard_configure(${target})
  # An example declares names that also exist in the surroundings, and leaves some unused.
  target_compile_options(${target} PRIVATE -Wno-shadow -Wno-unused)
  target_include_directories(${target} PRIVATE .)
  target_link_libraries(${target} PRIVATE ${code_LIBRARIES})
endfunction()

# pimvcard_code_example(CODE NAME LIST): writes the source NAME.cpp and appends it to LIST. An example that defines functions
# or variables is written unchanged. Any other example becomes the body of a function.
function(pimvcard_code_example code name list)
  if(NOT code MATCHES "(^|\n)(TEST_F|thread_local|class PIM(VCARD|CONTACT|PHONEBOOK)_EXPORT)")
    set(code "void Example();\nvoid Example()\n{\n${code}}\n")
  endif()
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "#include \"${surroundings}\"\n\nnamespace\n{\n${code}}\n" @ONLY)
  list(APPEND ${list} ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# pimvcard_examples_between(FILE BEGIN END PREFIX LIST): the lines between a line BEGIN and a line END, without the
# text at their start that matches PREFIX. A file without such lines is skipped.
function(pimvcard_examples_between file begin end prefix list)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  get_filename_component(name ${file} NAME_WE)
  file(READ ${file} text)
  # Semicolons separate the elements of CMake lists, so they are replaced temporarily.
  string(REPLACE ";" "@semicolon@" text "${text}")
  string(REPLACE "[" "@bracket@" text "${text}")
  string(REPLACE "]" "@end_of_bracket@" text "${text}")
  string(REPLACE "\\" "@backslash@" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  set(count 0)
  set(isInside FALSE)
  foreach(line IN LISTS lines)
    if(line MATCHES "^${end}$" AND isInside)
      set(isInside FALSE)
      math(EXPR count "${count} + 1")
      string(REPLACE "@semicolon@" ";" code "${code}")
      string(REPLACE "@bracket@" "[" code "${code}")
      string(REPLACE "@end_of_bracket@" "]" code "${code}")
      string(REPLACE "@backslash@" "\\" code "${code}")
      pimvcard_code_example("${code}" ${name}Example${count} ${list})
    elseif(line MATCHES "^${begin}$")
      set(isInside TRUE)
      set(code "")
    elseif(isInside)
      string(REGEX REPLACE "^${prefix}" "" line "${line}")
      string(APPEND code "${line}\n")
    endif()
  endforeach()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# A public header without an example is a mistake.
function(pimvcard_header_examples header list)
  set(before "${${list}}")
  pimvcard_examples_between(${header} "/// @backslash@code" "/// @backslash@endcode" "/// ?" ${list})
  if("${${list}}" STREQUAL "${before}")
    message(FATAL_ERROR "${header} has no example")
  endif()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

function(pimvcard_markdown_examples document list)
  pimvcard_examples_between(${document} " *```cpp" " *```" "   " ${list})
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()
