#include "test-folder.h"

#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "process.h"

FolderTest::FolderTest() : folder_(fs::canonical(fs::temp_directory_path()).string() + "/kq-test-XXXXXX") {
    umask(022);
    if (mkdtemp(folder_.data()) == nullptr) {
        std::perror(folder_.c_str());
        std::abort();
    }
}

FolderTest::~FolderTest() {
    if (HasFailure()) {
        std::fprintf(stderr, "the test's folder is kept: %s\n", folder_.c_str());
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
    std::ostringstream bytes;
    const std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << "can't read " << path;
    bytes << in.rdbuf();
    return bytes.str();
}

std::string FolderTest::StandardErrorOf(const std::function<void()>& action) {
    ::testing::internal::CaptureStderr();
    action();
    return ::testing::internal::GetCapturedStderr();
}

std::string WhyNot(Ability ability) {
    switch (ability) {
        case Ability::Linux: return fs::exists("/proc/self/ns/mnt") ? "" : "needs Linux";
        case Ability::Root: return geteuid() == 0 ? "" : "needs root";
        case Ability::OwnCalls:
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
            return "a sanitizer makes calls of its own";
#else
            return "";
#endif
        case Ability::Tracing: break;
    }
    const Outcome traced = RunProcess({"/usr/bin/strace", "-qq", "-o", "/dev/null", "/bin/true"});
    return traced.exitCode == 0 ? "" : "needs strace: " + traced.errors;
}

void AsOrdinaryUser(const std::function<void()>& action) {
    if (geteuid() != 0) {
        action();
        return;
    }
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) {
            std::perror("can't become another user");
            _exit(2);
        }
        action();
        std::fflush(nullptr);
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    EXPECT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status) << "as an ordinary user";
}
