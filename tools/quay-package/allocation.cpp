#include "allocation.h"

#include <cstdlib>  // lets the C library say which one it is
#if defined(__GLIBC__)
#include <malloc.h>
#endif

void KeepFreedMemory() {
#if defined(__GLIBC__)
    constexpr int kept = 64 << 20;
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TRIM_THRESHOLD, kept);
#endif
}
