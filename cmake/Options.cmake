# The interface targets that carry the flags of every target of ours, and of ours only.

add_library(quorvane_options INTERFACE)
target_compile_features(quorvane_options INTERFACE cxx_std_17)
target_compile_definitions(quorvane_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                                                      _WIN32_WINNT=0x0601 WINVER=0x0601)
target_compile_options(quorvane_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wconversion;-Wshadow;-Werror>)
target_include_directories(quorvane_options INTERFACE ${PROJECT_SOURCE_DIR})

# The one version, for version resources and what compares them.
add_library(quorvane_version INTERFACE)
target_compile_definitions(quorvane_version INTERFACE QUORVANE_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
                                                      QUORVANE_VERSION_MINOR=${PROJECT_VERSION_MINOR}
                                                      QUORVANE_VERSION_PATCH=${PROJECT_VERSION_PATCH})

# Two builds of one commit are identical: no source paths in the objects, no time stamps in the images.
add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
if(WIN32)
    add_link_options(-static -Wl,--no-insert-timestamp -Wl,--dynamicbase -Wl,--nxcompat)
endif()
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-Wl,--high-entropy-va)
endif()
# The library is handed out without symbols and without what nothing in it calls. Test programs keep both for back traces.
set(handed_out $<AND:$<CONFIG:Release>,$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>>)
add_link_options($<${handed_out}:-s> $<$<AND:${handed_out},$<BOOL:${WIN32}>>:-Wl,--gc-sections>)

# Header-only Debian packages are reached through links: /usr/include on a cross compiler's path breaks its own headers.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include)
file(CREATE_LINK /usr/include/nlohmann ${PROJECT_BINARY_DIR}/include/nlohmann SYMBOLIC)
add_library(nlohmann_json INTERFACE)
target_include_directories(nlohmann_json SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/include)

# A checked build traps undefined behaviour and the misuse of the standard library. For every target: one inline function
# without the checks would stand for all of its kind.
option(QUORVANE_CHECKED "Memory faults and undefined behaviour end the program" OFF)
if(QUORVANE_CHECKED)
    add_compile_definitions(QUORVANE_CHECKED _GLIBCXX_ASSERTIONS)
    add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-fsanitize=undefined,float-cast-overflow>
                        $<$<COMPILE_LANGUAGE:C,CXX>:-fsanitize-undefined-trap-on-error>
                        $<$<COMPILE_LANGUAGE:C,CXX>:-fstack-protector-all>)
    add_link_options(-fstack-protector-all)
endif()
