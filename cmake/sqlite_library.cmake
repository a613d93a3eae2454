# SQLite::SQLite3 for platforms whose compilers have no package of it, from the sources that
# scripts/sqlite_source makes.
set(sqlite_folder ${CMAKE_SOURCE_DIR}/build/sqlite)
if(NOT EXISTS ${sqlite_folder}/sqlite3.c)
  message(FATAL_ERROR "SQLite is missing: run scripts/sqlite_source first")
endif()
add_library(sqlite3 STATIC ${sqlite_folder}/sqlite3.c)
target_include_directories(sqlite3 SYSTEM PUBLIC ${sqlite_folder})
# What the Linux distribution's library is built with, as far as it is used here.
target_compile_definitions(sqlite3 PRIVATE SQLITE_THREADSAFE=1 SQLITE_ENABLE_COLUMN_METADATA
  SQLITE_ENABLE_DBSTAT_VTAB SQLITE_MAX_VARIABLE_NUMBER=250000 SQLITE_OMIT_LOAD_EXTENSION)
target_compile_options(sqlite3 PRIVATE -O1)
add_library(SQLite::SQLite3 ALIAS sqlite3)
