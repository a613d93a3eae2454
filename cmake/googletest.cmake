# GTest::gtest_main for platforms whose compilers have no package of it, from the sources that the
# distribution has for exactly this.
set(googletest_folder /usr/src/googletest/googletest)
if(NOT EXISTS ${googletest_folder})
  message(FATAL_ERROR "GoogleTest's sources are missing: install the package googletest")
endif()
add_library(gtest_main STATIC ${googletest_folder}/src/gtest-all.cc ${googletest_folder}/src/gtest_main.cc)
target_include_directories(gtest_main SYSTEM PUBLIC ${googletest_folder}/include)
target_include_directories(gtest_main PRIVATE ${googletest_folder})
add_library(GTest::gtest_main ALIAS gtest_main)
