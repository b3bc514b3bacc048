# What both architectures share. GoogleTest needs std::mutex, which only the -posix compilers have everywhere.
set(CMAKE_C_COMPILER ${QUORVANE_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QUORVANE_TRIPLET}-g++-posix)
# Links what is handed out: with its run-time library a module needs no winpthreads, which would install a handler of
# exceptions in the host's process and keep a thread-local index of it when the module goes.
set(QUORVANE_LINKER_DRIVER ${QUORVANE_TRIPLET}-g++-win32)
set(CMAKE_RC_COMPILER ${QUORVANE_TRIPLET}-windres)
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")

set(CMAKE_FIND_ROOT_PATH /usr/${QUORVANE_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
