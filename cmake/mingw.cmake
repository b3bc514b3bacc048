# What both architectures share. The -posix compilers are the ones with std::mutex and std::thread.
set(CMAKE_C_COMPILER ${QUORVANE_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QUORVANE_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${QUORVANE_TRIPLET}-windres)
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")

set(CMAKE_FIND_ROOT_PATH /usr/${QUORVANE_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
