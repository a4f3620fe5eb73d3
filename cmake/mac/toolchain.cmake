# Builds for macOS on Linux with zig's C++ compiler, which carries the system's own headers and the list of the symbols
# in its C library. What else a Mac has is stood in for, by cmake/mac/stand-ins. Used by scripts/build mac.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${KQ_MAC_CPU})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KQ_MAC_CPU)
get_filename_component(kq_stand_ins ${CMAKE_CURRENT_LIST_DIR}/../../build/mac ABSOLUTE)

set(CMAKE_C_COMPILER ${kq_stand_ins}/bin/${KQ_MAC_CPU}-clang)
set(CMAKE_CXX_COMPILER ${kq_stand_ins}/bin/${KQ_MAC_CPU}-clang++)
set(CMAKE_AR ${kq_stand_ins}/bin/ar)
set(CMAKE_RANLIB ${kq_stand_ins}/bin/ranlib)
# Nothing is installed, so nothing is renamed.
set(CMAKE_INSTALL_NAME_TOOL /bin/false)
foreach(language IN ITEMS C CXX)
    set(CMAKE_${language}_FLAGS_INIT "-O1 -isystem ${kq_stand_ins}/include -F${kq_stand_ins}")
endforeach()

# All of each room is linked, also what a program has no use for, so that no open symbol is overlooked.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--whole-archive -Wl,--no-gc-sections")

# The packages of the machine that builds are not those of a Mac.
set(CMAKE_FIND_ROOT_PATH ${kq_stand_ins})
foreach(kind IN ITEMS PACKAGE LIBRARY INCLUDE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(Qt5_DIR ${CMAKE_CURRENT_LIST_DIR})
set(GTest_DIR ${CMAKE_CURRENT_LIST_DIR})
