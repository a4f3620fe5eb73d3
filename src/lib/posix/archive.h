// Owners of libarchive's handles. Whoever includes this links libarchive.
#pragma once

#include <archive.h>

#include <memory>

// A reader, null for none. Source: archive_read_free(3).
struct FreeArchiveReader {
    void operator()(archive* reader) const { archive_read_free(reader); }
};
using ArchiveReader = std::unique_ptr<archive, FreeArchiveReader>;

// A writer, null for none. Source: archive_write_free(3).
struct FreeArchiveWriter {
    void operator()(archive* writer) const { archive_write_free(writer); }
};
using ArchiveWriter = std::unique_ptr<archive, FreeArchiveWriter>;
