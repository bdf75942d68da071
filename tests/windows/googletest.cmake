# GoogleTest for the cross-compiler, from the sources that Debian packages.
set(googletest /usr/src/googletest/googletest)
add_library(cross_googletest STATIC EXCLUDE_FROM_ALL ${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc)
target_include_directories(cross_googletest SYSTEM PUBLIC ${googletest}/include PRIVATE ${googletest})
target_compile_options(cross_googletest PRIVATE -O0)
add_library(GTest::gtest_main ALIAS cross_googletest)
