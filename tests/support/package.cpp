#include "package.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

namespace fs = std::filesystem;

void WritePackage(const std::string& file, const std::vector<PackageEntry>& entries, const std::string& format,
                  const std::string& filter) {
    fs::create_directories(fs::path(file).parent_path());
    archive* writer = archive_write_new();
    ASSERT_EQ(archive_write_set_format_by_name(writer, format.c_str()), ARCHIVE_OK) << format;
    if (!filter.empty()) {
        ASSERT_EQ(archive_write_add_filter_by_name(writer, filter.c_str()), ARCHIVE_OK) << filter;
    }
    if (format == "zip") {
        ASSERT_EQ(archive_write_set_options(writer, "hdrcharset=UTF-8"), ARCHIVE_OK);
    }
    ASSERT_EQ(archive_write_open_filename(writer, file.c_str()), ARCHIVE_OK) << archive_error_string(writer);
    for (const PackageEntry& source : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, source.path.c_str());
        archive_entry_set_filetype(entry, source.type);
        archive_entry_set_perm(entry, source.mode);
        if (source.type == S_IFLNK) {
            archive_entry_set_symlink(entry, source.content.c_str());
        } else if (source.type == S_IFREG) {
            archive_entry_set_size(entry, static_cast<la_int64_t>(source.content.size()));
        }
        ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK) << archive_error_string(writer);
        if (source.type == S_IFREG) {
            ASSERT_EQ(archive_write_data(writer, source.content.data(), source.content.size()),
                      static_cast<la_ssize_t>(source.content.size()));
        }
        archive_entry_free(entry);
    }
    ASSERT_EQ(archive_write_close(writer), ARCHIVE_OK) << archive_error_string(writer);
    archive_write_free(writer);
}

namespace {

std::string Describe(const fs::path& path) {
    struct stat info = {};
    if (lstat(path.c_str(), &info) != 0) {
        return "unreadable";
    }
    std::ostringstream text;
    text << std::oct << (info.st_mode & 07777U) << std::dec;
    if (S_ISLNK(info.st_mode)) {
        text << " link " << fs::read_symlink(path).string();
    } else if (S_ISDIR(info.st_mode)) {
        text << " folder";
    } else if (S_ISREG(info.st_mode)) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        const std::string content = bytes.str();
        text << " file ";
        if (content.size() <= 200) {
            text << content;
        } else {
            text << content.size() << " bytes #" << std::hash<std::string>()(content);
        }
    } else {
        text << " other";
    }
    return text.str();
}

void AddTree(const fs::path& folder, const std::string& prefix, Tree& tree) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        const std::string name = prefix + entry.path().filename().string();
        tree[name] = Describe(entry.path());
        if (entry.symlink_status().type() == fs::file_type::directory) {
            AddTree(entry.path(), name + "/", tree);
        }
    }
}

}  // namespace

Tree ReadTree(const std::string& folder) {
    Tree tree;
    AddTree(folder, "", tree);
    return tree;
}

Tree Below(const Tree& tree, const std::string& prefix) {
    Tree part;
    for (const auto& [path, description] : tree) {
        if (path.size() > prefix.size() && path.compare(0, prefix.size(), prefix) == 0 && path[prefix.size()] == '/') {
            part[path.substr(prefix.size() + 1)] = description;
        }
    }
    return part;
}
