# The POSIX-threads variant of the compilers, because std::thread and std::chrono need it.
set(CMAKE_C_COMPILER ${tellurix_compilers}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tellurix_compilers}-g++-posix)
set(CMAKE_RC_COMPILER ${tellurix_compilers}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${tellurix_compilers})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# What was built runs under Wine, tests too.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/${tellurix_wine} --headless)
