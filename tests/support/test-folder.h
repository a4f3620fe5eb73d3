// A fresh folder for each test, and what a machine must be able to do for some.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace fs = std::filesystem;

// Gives each test an empty folder of its own, removed when the test has passed; that of a failed one is kept and named.
class FolderTest : public ::testing::Test {
public:
    // Writes a file, parents included; reads one. Fail the test when they can't.
    static void Write(const std::string& path, const std::string& bytes);
    static std::string Read(const std::string& path);

protected:
    FolderTest();
    ~FolderTest() override;

    // The folder's absolute path, UTF-8, symbolic links resolved, without a trailing "/"; and a path below it.
    const std::string& folder() const { return folder_; }
    std::string At(const std::string& name) const { return folder_ + "/" + name; }

    // What `action` writes to the standard error stream of this process.
    static std::string StandardErrorOf(const std::function<void()>& action);

private:
    std::string folder_;
};

// What not every machine and every user can do: be another user; see and change a program's system calls, by strace(1);
// and tell those calls from a sanitizer's.
enum class Ability { Root, Tracing, OwnCalls };

// The reason why it can't be done here, empty if it can.
std::string WhyNot(Ability ability);

// Skips the test, whose body it must stand in, with the reason if there is one: KQ_NEED(Ability::Root).
#define KQ_NEED(what)                                               \
    if (const std::string reason = WhyNot(what); !reason.empty()) { \
        GTEST_SKIP() << reason;                                     \
    }
