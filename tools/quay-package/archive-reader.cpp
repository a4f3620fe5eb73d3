#include "archive-reader.h"

#include <archive.h>
#include <archive_entry.h>

#include "format.h"

namespace {

constexpr std::size_t kBlockSize = 10240;

std::string Text(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

void ArchiveReader::Free::operator()(archive* handle) const {
    archive_read_free(handle);
}

ArchiveReader::ArchiveReader() = default;

ArchiveReader::~ArchiveReader() = default;

void ArchiveReader::TakeError(const char* fallback) {
    error_ = Text(archive_error_string(handle_.get()));
    if (error_.empty()) {
        error_ = fallback;
    }
}

bool ArchiveReader::Open(const std::string& file) {
    handle_.reset(archive_read_new());
    archive_read_support_filter_all(handle_.get());
    archive_read_support_format_all(handle_.get());
    if (archive_read_open_filename(handle_.get(), file.c_str(), kBlockSize) != ARCHIVE_OK) {
        TakeError("can't open it");
        return false;
    }
    return true;
}

void ArchiveReader::Close() {
    handle_.reset();
}

ArchiveReader::Result ArchiveReader::Next(Entry& entry) {
    archive_entry* header = nullptr;
    const int result = archive_read_next_header(handle_.get(), &header);
    if (result == ARCHIVE_EOF) {
        return End;
    }
    // A warning counts: the extractor takes it for a failure.
    if (result != ARCHIVE_OK) {
        TakeError("unreadable header");
        return Damaged;
    }
    entry.path = Text(archive_entry_pathname(header));
    while (entry.path.size() > 1 && entry.path.back() == '/') {
        entry.path.pop_back();
    }
    entry.type = archive_entry_filetype(header);
    entry.mode = archive_entry_perm(header);
    entry.size = archive_entry_size_is_set(header) != 0 ? archive_entry_size(header) : -1;
    const char* hardLink = archive_entry_hardlink(header);
    entry.isHardLink = hardLink != nullptr;
    entry.link = entry.isHardLink ? Text(hardLink) : Text(archive_entry_symlink(header));
    entry.isEncrypted = archive_entry_is_encrypted(header) != 0;
    return Header;
}

bool ArchiveReader::ReadData(const std::function<bool(const char* bytes, std::size_t size)>& take) {
    for (;;) {
        const void* block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int result = archive_read_data_block(handle_.get(), &block, &size, &offset);
        if (result == ARCHIVE_EOF) {
            return true;
        }
        if (result != ARCHIVE_OK) {
            TakeError("unreadable data");
            return false;
        }
        if (!take(static_cast<const char*>(block), size)) {
            return true;
        }
    }
}

std::string ArchiveReader::FormatText() const {
    return ::FormatText(handle_.get());
}

bool ArchiveReader::IsPackageFormat() const {
    return ::IsPackageFormat(handle_.get());
}
