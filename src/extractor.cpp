#include "extractor.h"

#include <archive_entry.h>

#include <iostream>

#include "log/log-statement.h"
#include "notify-adapter.h"
#include "posix/archive.h"
#include "resources/str-table.h"

namespace {

constexpr char kComponent[] = "extractor_debug";
constexpr std::size_t kBlockSize = 10240;

// Neither owners, times nor exact modes are restored, and links that the package made are followed.
constexpr int kDiskOptions = ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kDiskOptions == 0x2210, "the three flags, as libarchive numbers them");

// libarchive's last message for a handle, which has none where the failing call said nothing.
const char* ErrorText(archive* handle) {
    const char* text = archive_error_string(handle);
    return text == nullptr ? "(null)" : text;
}

void SupportAll(archive* reader) {
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
}

// Opens `path` with every filter and format, for Count and List. Null, with the reason in the log, where that fails.
ArchiveReader OpenForReading(const std::string& path) {
    ArchiveReader reader(archive_read_new());
    if (!reader) {
        KQ_LOG_ERROR(kComponent, "Allocate archive failed\n");
        return nullptr;
    }
    SupportAll(reader.get());
    if (archive_read_open_filename(reader.get(), path.c_str(), kBlockSize) != ARCHIVE_OK) {
        KQ_LOG_ERROR(kComponent, "archive_read_open_filename failed: '%s'\n", ErrorText(reader.get()));
        return nullptr;
    }
    return reader;
}

// Writes one entry, whose header was just read, below `destPath`, and reports it. 0 or -1.
int ExtractEntry(archive* reader, archive* writer, archive_entry* entry, const std::string& destPath, int total,
                 int current) {
    const char* pathname = archive_entry_pathname(entry);
    if (pathname == nullptr) {
        // No newline of its own: the log's readers know the line so.
        KQ_LOG_ERROR(kComponent, "archive_entry_pathname failed");
        return -1;
    }
    // As it stands: so an absolute pathname lands below the folder, and the writer refuses a "..".
    const std::string target = destPath + "/" + pathname;
    archive_entry_set_pathname(entry, target.c_str());

    // A warning is a failure too: it means that the entry is not what the package holds.
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        KQ_LOG_ERROR(kComponent, "archive_read_extract2 failed: '%s'\n", ErrorText(writer));
        return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, current);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        KQ_LOG_ERROR(kComponent, "archive_write_finish_entry failed: '%s'\n", ErrorText(writer));
        return -1;
    }
    return 0;
}

// Writes every entry of an open archive. 0 at the archive's end, -1 on the first failure.
int ExtractEntries(archive* reader, archive* writer, const std::string& destPath, int total) {
    for (int current = 1;; ++current) {
        archive_entry* entry = nullptr;
        const int header = archive_read_next_header(reader, &entry);
        if (header == ARCHIVE_EOF) {
            return 0;
        }
        if (header != ARCHIVE_OK) {
            KQ_LOG_ERROR(kComponent, "archive_read_next_header failed: '%s'\n", ErrorText(reader));
            return -1;
        }
        if (ExtractEntry(reader, writer, entry, destPath, total, current) != 0) {
            return -1;
        }
    }
}

}  // namespace

int Extractor::Extract() {
    if (sourcePath.empty() || destPath.empty()) {
        KQ_LOG_ERROR(kComponent, "Invalid Argument\n");
        return -1;
    }
    KQ_LOG_DEBUG(kComponent, "decompress from '%s' to '%s'\n", sourcePath.c_str(), destPath.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStrWithAppName(StrTable::kRowInitializing));

    const int total = Count();
    if (total <= 0) {
        KQ_LOG_ERROR(kComponent, "Failed to calculate total file numbers, ret: %d\n", total);
        return -1;
    }

    ArchiveWriter writer;  // declared first, so that the reader is freed before it
    const ArchiveReader reader(archive_read_new());
    if (!reader) {
        KQ_LOG_ERROR(kComponent, "Allocate extractor failed\n");
        return -1;
    }
    writer.reset(archive_write_disk_new());
    if (!writer) {
        KQ_LOG_ERROR(kComponent, "Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kDiskOptions);
    SupportAll(reader.get());
    if (archive_read_open_filename(reader.get(), sourcePath.c_str(), kBlockSize) != ARCHIVE_OK) {
        KQ_LOG_ERROR(kComponent, "Failed to read file '%s' ('%s')\n", sourcePath.c_str(), ErrorText(reader.get()));
        return -1;
    }
    return ExtractEntries(reader.get(), writer.get(), destPath, total);
}

int Extractor::Count() {
    // An empty destination is refused too, although nothing is written here.
    if (destPath.empty() || sourcePath.empty()) {
        KQ_LOG_ERROR(kComponent, "Invalid argument\n");
        return -1;
    }
    const ArchiveReader reader = OpenForReading(sourcePath);
    if (!reader) {
        return -1;
    }
    int count = 0;
    archive_entry* entry = nullptr;
    // Damage ends the count as the end does: Extract will find it and say what it is.
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() {
    if (destPath.empty() || sourcePath.empty()) {
        // Deliberately no return: a listing needs no destination. libarchive takes an empty source for standard input,
        // which is then listed.
        KQ_LOG_ERROR(kComponent, "Invalid argument\n");
    }
    const ArchiveReader reader = OpenForReading(sourcePath);
    if (!reader) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* pathname = archive_entry_pathname(entry);
        std::cout << (pathname == nullptr ? "" : pathname) << std::endl;
        archive_read_data_skip(reader.get());
    }
    archive_read_close(reader.get());
    return 0;
}

int Extractor::copy_data(archive* reader, archive* writer) {
    if (reader == nullptr || writer == nullptr) {
        KQ_LOG_ERROR(kComponent, "Invalid Argument\n");
        return -1;
    }
    for (;;) {
        const void* block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int read = archive_read_data_block(reader, &block, &size, &offset);
        if (read == ARCHIVE_EOF) {
            return 0;
        }
        if (read != ARCHIVE_OK) {
            KQ_LOG_ERROR(kComponent, "archive_read_data_block failed: '%s'\n", ErrorText(reader));
            return -1;
        }
        if (archive_write_data_block(writer, block, size, offset) != ARCHIVE_OK) {
            KQ_LOG_ERROR(kComponent, "archive_write_data_block failed: '%s'\n", ErrorText(writer));
            return -1;
        }
    }
}
