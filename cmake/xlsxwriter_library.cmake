# libxlsxwriter for the Windows compilers, which have no package of it: built from the sources that
# scripts/xlsxwriter_source gets, with the libraries that come with them. zlib is a package.
set(xlsxwriter_folder ${CMAKE_SOURCE_DIR}/build/xlsxwriter)
if(NOT EXISTS ${xlsxwriter_folder}/include/xlsxwriter.h)
  message(FATAL_ERROR "libxlsxwriter is missing: run scripts/xlsxwriter_source first")
endif()
find_library(zlib_library NAMES libz.a REQUIRED)
file(GLOB xlsxwriter_sources ${xlsxwriter_folder}/src/*.c)
add_library(xlsxwriter STATIC ${xlsxwriter_sources} ${xlsxwriter_folder}/third_party/md5/md5.c
  ${xlsxwriter_folder}/third_party/tmpfileplus/tmpfileplus.c ${xlsxwriter_folder}/third_party/minizip/ioapi.c
  ${xlsxwriter_folder}/third_party/minizip/iowin32.c ${xlsxwriter_folder}/third_party/minizip/zip.c)
target_include_directories(xlsxwriter SYSTEM PUBLIC ${xlsxwriter_folder}/include)
target_compile_options(xlsxwriter PRIVATE -w)
set_target_properties(xlsxwriter PROPERTIES UNITY_BUILD OFF)
target_link_libraries(xlsxwriter PRIVATE ${zlib_library})
