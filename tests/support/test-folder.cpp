#include "test-folder.h"

#include <archive.h>
#include <archive_entry.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "process.h"

FolderTest::FolderTest() : folder_(fs::canonical(fs::temp_directory_path()).string() + "/kq-test-XXXXXX") {
    umask(022);
    EXPECT_NE(mkdtemp(folder_.data()), nullptr) << folder_;
}

FolderTest::~FolderTest() {
    if (HasFailure()) {
        std::cerr << "the test's folder is kept: " << folder_ << "\n";
        return;
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void FolderTest::Write(const std::string& path, const std::string& bytes) {
    fs::create_directories(fs::absolute(path).parent_path());
    EXPECT_TRUE(std::ofstream(path, std::ios::binary) << bytes << std::flush) << "can't write " << path;
}

std::string FolderTest::Read(const std::string& path) {
    const std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << "can't read " << path;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::string FolderTest::StandardErrorOf(const std::function<void()>& action) {
    ::testing::internal::CaptureStderr();
    action();
    return ::testing::internal::GetCapturedStderr();
}

void WritePackage(const std::string& file, const std::vector<PackageEntry>& entries, const std::string& format,
                  const std::string& filter) {
    fs::create_directories(fs::path(file).parent_path());
    archive* writer = archive_write_new();
    int result = archive_write_set_format_by_name(writer, format.c_str());
    result |= filter.empty() ? 0 : archive_write_add_filter_by_name(writer, filter.c_str());
    result |= format == "zip" ? archive_write_set_options(writer, "hdrcharset=UTF-8") : 0;
    result |= archive_write_open_filename(writer, file.c_str());
    for (const PackageEntry& source : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, source.path.c_str());
        archive_entry_set_filetype(entry, source.type);
        archive_entry_set_perm(entry, static_cast<mode_t>(source.mode));
        const std::size_t size = source.type == S_IFREG ? source.content.size() : 0;
        archive_entry_set_size(entry, static_cast<la_int64_t>(size));
        if (source.type == S_IFLNK) {
            archive_entry_set_symlink(entry, source.content.c_str());
        }
        result |= archive_write_header(writer, entry);
        EXPECT_EQ(archive_write_data(writer, source.content.data(), size), static_cast<la_ssize_t>(size));
        archive_entry_free(entry);
    }
    result |= archive_write_close(writer);
    EXPECT_EQ(result, ARCHIVE_OK) << format << " " << filter;
    archive_write_free(writer);
}

Tree ReadTree(const std::string& folder) {
    Tree tree;
    std::error_code absent;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, absent)) {
        std::ostringstream text;
        text << std::oct << static_cast<unsigned>(entry.symlink_status().permissions()) << std::dec;
        if (entry.is_symlink()) {
            text << " link " << fs::read_symlink(entry).string();
        } else if (entry.is_regular_file()) {
            const std::string content = FolderTest::Read(entry.path());
            text << " file " << (content.size() > 200 ? std::to_string(std::hash<std::string>()(content)) : content);
        } else {
            text << (entry.is_directory() ? " folder" : " other");
        }
        tree[entry.path().string().substr(folder.size() + 1)] = text.str();
    }
    return tree;
}

std::string WhyNot(Ability ability) {
    if (ability == Ability::Root) {
        return geteuid() == 0 ? "" : "needs root";
    }
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    if (ability == Ability::OwnCalls) {
        return "a sanitizer makes calls of its own";
    }
#endif
    const Outcome traced = RunProcess({"/usr/bin/env", "strace", "-qq", "-o", "/dev/null", "/bin/true"});
    return traced.exitCode == 0 ? "" : "needs strace: " + traced.errors;
}
