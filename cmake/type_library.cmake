# tellurix_type_library(<target> <idl> DESCRIPTION <text> [IMPORTS <target>…])
#
# Compiles <name>.idl into <name>.tlb and the header <name>.h. <target> is an interface library:
# linking it gives the folder of both, for #include "<name>.h" and for a resource script's
# `1 TYPELIB "<name>.tlb"`, and has them made first. IMPORTS names the libraries that it
# imports, DESCRIPTION goes into the version information of the DLL that offers it.
find_program(TELLURIX_WIDL ${tellurix_compilers}-widl REQUIRED)
# The interfaces that every library starts from, and the type library that describes them.
find_path(TELLURIX_BASE_IDL oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
  NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(TELLURIX_BASE_TLB stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
  /usr/lib/wine/x86_64-windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)

function(tellurix_type_library target idl)
  cmake_parse_arguments(arg "" "DESCRIPTION" "IMPORTS" ${ARGN})
  cmake_path(GET idl STEM name)
  set(source ${CMAKE_CURRENT_SOURCE_DIR}/${idl})
  set(folder ${CMAKE_CURRENT_BINARY_DIR})
  set(searched -I${TELLURIX_BASE_IDL} -L${TELLURIX_BASE_TLB})
  set(imported "")
  foreach(import IN LISTS arg_IMPORTS)
    get_target_property(import_idl ${import} TELLURIX_IDL)
    get_target_property(import_tlb ${import} TELLURIX_TLB)
    cmake_path(GET import_idl PARENT_PATH import_source)
    cmake_path(GET import_tlb PARENT_PATH import_folder)
    list(APPEND searched -I${import_source} -L${import_folder})
    list(APPEND imported ${import_idl} ${import_tlb})
  endforeach()

  # One kind of output a call.
  foreach(option_and_suffix "t tlb" "h h")
    separate_arguments(pair UNIX_COMMAND ${option_and_suffix})
    list(GET pair 0 option)
    list(GET pair 1 suffix)
    set(output ${folder}/${name}.${suffix})
    add_custom_command(OUTPUT ${output}
      COMMAND ${TELLURIX_WIDL} ${searched} -${option} -o ${output} ${source}
      DEPENDS ${source} ${imported} VERBATIM)
  endforeach()
  add_custom_target(${target}_files DEPENDS ${folder}/${name}.tlb ${folder}/${name}.h)

  add_library(${target} INTERFACE)
  add_dependencies(${target} ${target}_files)
  target_include_directories(${target} SYSTEM INTERFACE ${folder})
  target_link_libraries(${target} INTERFACE ${arg_IMPORTS})
  set_target_properties(${target} PROPERTIES
    TELLURIX_IDL ${source} TELLURIX_TLB ${folder}/${name}.tlb TELLURIX_DESCRIPTION "${arg_DESCRIPTION}")
endfunction()
