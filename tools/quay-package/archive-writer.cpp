#include "archive-writer.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "format.h"
#include "output-file.h"

void ArchiveWriter::Free::operator()(archive* handle) const {
    archive_write_free(handle);
}

ArchiveWriter::~ArchiveWriter() {
    // Nothing more is to be written when the caller gives up.
    isDiscarding_ = true;
}

// libarchive's way to the file. It is never told of a failure, since it does not free all that it holds after one:
// what comes behind is thrown away, and Check() tells.
la_ssize_t ArchiveWriter::WriteBlock(archive* /*handle*/, void* self, const void* block, std::size_t size) {
    auto* writer = static_cast<ArchiveWriter*>(self);
    if (!writer->isDiscarding_ && !WriteAll(writer->descriptor_, static_cast<const char*>(block), size)) {
        writer->error_ = std::strerror(errno);
        writer->isDiscarding_ = true;
    }
    return static_cast<la_ssize_t>(size);
}

bool ArchiveWriter::Check(int result) {
    if (isDiscarding_) {
        return false;
    }
    if (result == ARCHIVE_OK) {
        return true;
    }
    const char* text = archive_error_string(handle_.get());
    error_ = text == nullptr ? "the archive library failed" : text;
    return false;
}

bool ArchiveWriter::Open(int descriptor, const std::string& format) {
    descriptor_ = descriptor;
    handle_.reset(archive_write_new());
    error_ = SetFormat(handle_.get(), format);
    // The last block is as long as it is: no padding to a tape's block.
    return error_.empty() && Check(archive_write_set_bytes_in_last_block(handle_.get(), 1)) &&
           Check(archive_write_open(handle_.get(), this, nullptr, WriteBlock, nullptr));
}

bool ArchiveWriter::AddHeader(const std::string& path, unsigned type, unsigned mode, std::int64_t size,
                              const char* target) {
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(entry.get(), path.c_str());
    archive_entry_set_filetype(entry.get(), type);
    archive_entry_set_perm(entry.get(), static_cast<mode_t>(mode));
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
    return Check(ARCHIVE_OK);
}

bool ArchiveWriter::Close() {
    return Check(archive_write_close(handle_.get()));
}
