# Debian ships GoogleTest's source for cross builds. Its warnings are not ours to mend, so it gets none of our flags.
set(googletest /usr/src/googletest/googletest)
add_library(gtest STATIC ${googletest}/src/gtest-all.cc)
target_compile_features(gtest PUBLIC cxx_std_17)
target_compile_definitions(gtest PUBLIC GTEST_HAS_DEATH_TEST=0)
target_include_directories(gtest SYSTEM PUBLIC ${googletest}/include PRIVATE ${googletest})
quorvane_unoptimised(gtest)
add_library(gtest_main STATIC ${googletest}/src/gtest_main.cc)
target_link_libraries(gtest_main PUBLIC gtest)
