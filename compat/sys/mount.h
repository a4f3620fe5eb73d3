// Stand-in for the macOS header of this name: statfs, whose record has the type name of the volume. See
// CoreServices/CoreServices.h beside it for how it is used.
#pragma once

struct statfs {
    char f_fstypename[16];
};

// That a function has the name of a record is the system's own habit.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

// A test brings the body as kq_stand_in_statfs, so that the C library's function stays what it is.
extern "C" int statfs(const char* path, struct statfs* status) __asm__("kq_stand_in_statfs");

#pragma GCC diagnostic pop
