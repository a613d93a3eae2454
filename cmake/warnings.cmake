# What every target of this project is compiled with. Third-party headers come in as system
# headers, so that a warning is always about our own code, and always an error.
add_library(tellurix_warnings INTERFACE)
target_compile_options(tellurix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast -Wnull-dereference -Wimplicit-fallthrough -Werror)

if(TELLURIX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # The sanitizers' own instrumentation confuses this flow analysis of the compiler.
  target_compile_options(tellurix_warnings INTERFACE -Wno-null-dereference -Wno-maybe-uninitialized)
endif()
