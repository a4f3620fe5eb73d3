// The allocator's habits.
#pragma once

// Keeps blocks of up to 64 MiB in the process when they are freed. A zip file's writer takes and frees a quarter of a
// MiB for each entry; handed back to the system each time, packing a hundred thousand small files takes four times as
// long. Does nothing where the C library has no such setting. Main thread, before any other. Source: mallopt(3).
void KeepFreedMemory();
