// Zip archives, byte for byte. The form is the plainest that the format has: from the first byte on local headers, each
// with its data behind it; then the directory; then its end; nothing before, between or behind. Data is stored or
// deflated. A library's reader tells names and sizes but not what lies between them, so that the layout has to be known
// here; what is written is laid by the same description. Source: APPNOTE.TXT, PKWARE's description of the format.
#pragma once

#include <zlib.h>

#include <QFile>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry.h"
#include "finding.h"

// Reads the directory of an open archive, and compares each local header with what the directory says of its entry.
// What is not as pack could have written it is added to `findings`; `entries` then ends where the doubt begins. Data is
// not looked at, but for the targets of links. An archive of another tool is good where it says the same one thing: it
// may carry times and owners, which no launcher restores.
Error ReadDirectory(QFile& file, std::vector<Entry>& entries, Findings& findings);

// Writes an archive. Its bytes depend on nothing but the calls. Nothing may follow a failure. One thread.
class ZipWriter {
public:
    // `file` is open to write, unbuffered and empty. `time` is that of all entries; a year from 1980 to 2107.
    ZipWriter(QFile& file, std::time_t time);
    ~ZipWriter() { deflateEnd(&stream_); }
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    // Hands a file's data over, block by block, to what it is given.
    using Source = std::function<Error(const std::function<Error(std::string_view block)>& take)>;

    // Writes an entry; `source` is asked for a file's data alone and must yield `entry.size` bytes. Sets entry.form.
    Error Add(Entry& entry, const Source& source);

    // Completes the archive.
    Error Finish();

private:
    Error Write(std::string_view bytes);
    Error WriteDeflated(Entry& entry, const Source& source);

    QFile& file_;
    z_stream stream_ = {};  // one for all entries: it takes a quarter of a MiB
    ZipForm form_;
    std::string directory_;
    std::uint64_t count_ = 0;
};
