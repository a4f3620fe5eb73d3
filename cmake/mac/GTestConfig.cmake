# GoogleTest for cmake/mac/toolchain.cmake, from the sources that Debian's package brings.
add_subdirectory(/usr/src/googletest/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
