// Unpacks the package archive.
#pragma once

#include <string>

struct archive;

// One pass over an archive to count its entries, a second one that writes them below a folder and reports each to
// Notify_Adapter. Every format and filter of libarchive is taken.
//
// The caller sets the two paths; the object has no other state, and no libarchive handle outlives a call. An operation
// that fails logs the reason (component "extractor_debug") and leaves on disk what it wrote: what happens next is the
// caller's decision. Handler thread; two objects don't disturb each other. Source: libarchive(3),
// archive_write_disk(3).
class Extractor {
public:
    // Unpacks `sourcePath` below `destPath`, which must exist. 0 when every entry up to the archive's end was written,
    // -1 on any failure; an archive without entries is one. Each entry's pathname is appended to `destPath` as it
    // stands; a pathname with a ".." element fails. Link targets stay as stored, so that a package is to carry no hard
    // links and no links that lead out of it. Modes come from the entries, less the umask; times and owners do not.
    int Extract();

    // The number of entries that can be read, or -1 if a path is empty or the archive can't be opened. A damaged entry
    // ends the count like the end of the archive does.
    int Count();

    // Writes the entries' pathnames to standard output, a line each, up to the end or the first damage. 0, or -1 if the
    // archive can't be opened.
    int List();

    // Moves one entry's data from an open reader to an open disk writer, offsets unchanged, so that a sparse entry
    // stays sparse. 0 at the end of the data, -1 on any failure or a null handle. Both handles stay the caller's.
    int copy_data(archive* reader, archive* writer);

    std::string destPath;    // the folder that receives the entries, UTF-8
    std::string sourcePath;  // the archive file, UTF-8
};
