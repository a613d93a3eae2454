# tellurix_embed_files(<target> <namespace> <name> <folder> <file>…)
#
# Puts files into the executable, so that it runs from wherever it lies. Generates
# "<name>.h" with
#     namespace tellurix::<namespace>::<name> { std::string_view file(std::string_view name); }
# which returns the bytes of a file by its name relative to <folder>, or throws std::out_of_range.
#
# The comments of scripts and style sheets, where they stand on lines of their own, are for those who read the
# source: they are left out, and so is the indentation.
function(tellurix_embed_files target namespace name folder)
  set(generated ${CMAKE_CURRENT_BINARY_DIR}/embedded_${name})
  set(arrays "")
  set(cases "")
  set(index 0)
  foreach(file IN LISTS ARGN)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${folder}/${file})
    if(file MATCHES "\\.(js|css)$")
      file(READ ${folder}/${file} text)
      string(REGEX REPLACE "\n *//[^\n]*" "" text "\n${text}")
      string(REGEX REPLACE "\n */\\*([^*]|\\*+[^*/])*\\*+/" "" text "${text}")
      string(REGEX REPLACE "\n[\n ]*" "\n" text "${text}")
      string(HEX "${text}" bytes)
    else()
      file(READ ${folder}/${file} bytes HEX)
    endif()
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
    string(APPEND arrays "const unsigned char file${index}[] = {${bytes}0};\n")
    string(APPEND cases "    if (name == \"${file}\") return view(file${index}, sizeof file${index} - 1);\n")
    math(EXPR index "${index} + 1")
  endforeach()
  file(CONFIGURE OUTPUT ${generated}/${name}.h CONTENT
"#pragma once

#include <string_view>

namespace tellurix::${namespace}::${name} {

/// The bytes of a file that was built in. Throws std::out_of_range for an unknown name.
std::string_view file(std::string_view name);

} // namespace tellurix::${namespace}::${name}
" @ONLY)
  file(CONFIGURE OUTPUT ${generated}/${name}.cpp CONTENT
"#include \"${name}.h\"

#include <stdexcept>
#include <string>

namespace tellurix::${namespace}::${name} {

namespace {

${arrays}
std::string_view view(const unsigned char* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

} // namespace

std::string_view file(std::string_view name) {
${cases}    throw std::out_of_range{\"no built-in file \" + std::string{name}};
}

} // namespace tellurix::${namespace}::${name}
" @ONLY)
  target_sources(${target} PRIVATE ${generated}/${name}.cpp)
  target_include_directories(${target} PUBLIC ${generated})
endfunction()
