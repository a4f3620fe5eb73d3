# Warnings and sanitizers, as an interface target that every target of ours links.
add_library(kq_compiler INTERFACE)

target_compile_options(kq_compiler INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual -Wcast-align
    -Wformat=2 -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -Wundef -Wunused
    -fvisibility=hidden)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(kq_compiler INTERFACE -Wduplicated-cond -Wlogical-op -Wsuggest-override)
endif()
if(KQ_WERROR)
    target_compile_options(kq_compiler INTERFACE -Werror)
endif()

# Qt's implicit conversions from plain text are off: what is UTF-8 says so, and operator+(QString, const char*) is ours.
target_compile_definitions(kq_compiler INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    # A 64-bit off_t on every platform, so that packages beyond 2 GiB work.
    _FILE_OFFSET_BITS=64)

if(KQ_SANITIZE)
    string(REPLACE ";" "," kq_sanitizers "${KQ_SANITIZE}")
    target_compile_options(kq_compiler INTERFACE -fsanitize=${kq_sanitizers} -fno-omit-frame-pointer)
    target_link_options(kq_compiler INTERFACE -fsanitize=${kq_sanitizers})
    # Under a sanitizer GCC 12 takes members of its own library's <regex> for uninitialised.
    target_compile_options(kq_compiler INTERFACE -Wno-maybe-uninitialized)
    if(NOT kq_sanitizers STREQUAL "thread")
        target_compile_options(kq_compiler INTERFACE -fno-sanitize-recover=all)
    else()
        # What GCC 12 says of atomic fences is about its own library headers.
        target_compile_options(kq_compiler INTERFACE -Wno-tsan)
    endif()
endif()
