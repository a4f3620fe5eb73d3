#include "archive-writer.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <cstring>

#include "format.h"

void ArchiveWriter::Free::operator()(archive* handle) const {
    archive_write_free(handle);
}

ArchiveWriter::~ArchiveWriter() {
    if (handle_) {
        // Nothing more is to be written when the caller gives up.
        archive_write_fail(handle_.get());
    }
}

bool ArchiveWriter::Check(int result) {
    if (result == ARCHIVE_OK) {
        return true;
    }
    const char* text = archive_error_string(handle_.get());
    error_ = text == nullptr ? "the archive library failed" : text;
    if (const int number = archive_errno(handle_.get()); number > 0) {
        error_ += std::string(": ") + std::strerror(number);
    }
    return false;
}

bool ArchiveWriter::Open(int descriptor, const std::string& format) {
    handle_.reset(archive_write_new());
    error_ = SetFormat(handle_.get(), format);
    // The last block is as long as it is: no padding to a tape's block.
    return error_.empty() && Check(archive_write_set_bytes_in_last_block(handle_.get(), 1)) &&
           Check(archive_write_open_fd(handle_.get(), descriptor));
}

bool ArchiveWriter::AddHeader(const std::string& path, unsigned type, unsigned mode, std::int64_t size,
                              const char* target) {
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(entry.get(), path.c_str());
    archive_entry_set_filetype(entry.get(), type);
    archive_entry_set_perm(entry.get(), mode);
    archive_entry_set_size(entry.get(), size);
    archive_entry_set_mtime(entry.get(), time_, 0);
    archive_entry_set_uid(entry.get(), 0);
    archive_entry_set_gid(entry.get(), 0);
    if (target != nullptr) {
        archive_entry_set_symlink(entry.get(), target);
    }
    return Check(archive_write_header(handle_.get(), entry.get()));
}

bool ArchiveWriter::AddFolder(const std::string& path) {
    return AddHeader(path + "/", S_IFDIR, 0755, 0, nullptr);
}

bool ArchiveWriter::AddLink(const std::string& path, const std::string& target) {
    return AddHeader(path, S_IFLNK, 0777, 0, target.c_str());
}

bool ArchiveWriter::AddFile(const std::string& path, bool executable, std::int64_t size) {
    return AddHeader(path, S_IFREG, executable ? 0755 : 0644, size, nullptr);
}

bool ArchiveWriter::AddData(const char* bytes, std::size_t size) {
    const la_ssize_t written = archive_write_data(handle_.get(), bytes, size);
    if (written < 0) {
        return Check(static_cast<int>(written));
    }
    if (static_cast<std::size_t>(written) != size) {
        error_ = "the archive library took only a part of the data";
        return false;
    }
    return true;
}

bool ArchiveWriter::Close() {
    return Check(archive_write_close(handle_.get()));
}
