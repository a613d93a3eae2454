# What every target of this project is compiled with. Third-party headers come in as system
# headers, so that a warning is always about our own code, and always an error.
add_library(tellurix_warnings INTERFACE)
target_compile_options(tellurix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast -Wimplicit-fallthrough -Werror)

# GCC 12 reports assignments of short literals to std::string as overlapping copies (its bug 105329).
target_compile_options(tellurix_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

if(TELLURIX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # The sanitizers' own instrumentation confuses this flow analysis of the compiler.
  target_compile_options(tellurix_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
