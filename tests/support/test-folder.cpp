#include "test-folder.h"

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
