# quorvane_library(NAME SOURCES FILE... LINKS TARGET...): a static library of this project.
function(quorvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC quorvane_options ${ARG_LINKS})
endfunction()

# quorvane_guard_heap(TARGET): in a checked build, faults in the module's heap end the program.
function(quorvane_guard_heap target)
    if(QUORVANE_CHECKED)
        target_link_libraries(${target} PRIVATE guarded_heap)
    endif()
endfunction()

# quorvane_unoptimised(TARGET): for what only tests run, under Wine: who waits for a test waits for the compiler.
function(quorvane_unoptimised target)
    if(WIN32)
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
    endif()
endfunction()

# quorvane_build_quickly(TARGET): for what only tests run and what includes GoogleTest: with the headers that nearly all
# of it includes compiled once.
function(quorvane_build_quickly target)
    quorvane_unoptimised(${target})
    if(WIN32)
        target_precompile_headers(${target} REUSE_FROM test_headers)
    endif()
endfunction()

# quorvane_test_library(NAME SOURCES FILE... LINKS TARGET...): a static library of test code.
function(quorvane_test_library name)
    quorvane_library(${name} ${ARGN})
    target_link_libraries(${name} PUBLIC gtest)
    quorvane_build_quickly(${name})
endfunction()

# quorvane_shared_tests(NAME SOURCES FILE... LINKS TARGET...): tests that more than one program has. Objects, because
# nothing refers to a test.
function(quorvane_shared_tests name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} OBJECT ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC quorvane_options ${ARG_LINKS} gtest)
    quorvane_build_quickly(${name})
endfunction()

# quorvane_test(NAME SOURCES FILE... LINKS TARGET...): a GoogleTest program that ./test.sh runs. It loads the DLL at
# run time, so it is never linked against it.
function(quorvane_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE quorvane_options ${ARG_LINKS} gtest)
    quorvane_build_quickly(${name})
    add_dependencies(${name} run_time_files)
    if(WIN32)
        quorvane_guard_heap(${name})
        add_dependencies(${name} Quorvane)
    endif()
    set_property(GLOBAL APPEND PROPERTY QUORVANE_TESTS ${name})
endfunction()
