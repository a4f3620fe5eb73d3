#include "test-folder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

FolderTest::FolderTest() {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string pattern = fs::canonical(fs::temp_directory_path()).string() + "/kq-" + test->name();
    for (char& byte : pattern) {
        byte = byte == ' ' || byte == '\'' ? '-' : byte;
    }
    // A parameterised test's name ends in "/0".
    for (std::size_t at = pattern.rfind("/kq-") + 1; at < pattern.size(); ++at) {
        pattern[at] = pattern[at] == '/' ? '-' : pattern[at];
    }
    pattern += "-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
        std::perror(pattern.c_str());
        std::abort();
    }
    folder_ = pattern;
}

FolderTest::~FolderTest() {
    if (HasFailure()) {
        std::fprintf(stderr, "the test's folder is kept: %s\n", folder_.c_str());
        return;
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void FolderTest::Write(const std::string& path, const std::string& bytes) const {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    ASSERT_TRUE(out.good()) << "can't write " << path;
}

std::string FolderTest::Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << "can't read " << path;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}
