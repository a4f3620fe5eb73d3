// A fresh folder for each test.
#pragma once

#include <gtest/gtest.h>

#include <string>

// Gives each test an empty folder of its own. A folder of a passed test is removed; that of a failed one is kept and
// its path printed, so that whoever looks into the failure finds what the test left.
class FolderTest : public ::testing::Test {
protected:
    FolderTest();
    ~FolderTest() override;

    // The folder's absolute path, UTF-8, symbolic links resolved, without a trailing "/".
    const std::string& folder() const { return folder_; }

    // A path below the folder.
    std::string At(const std::string& name) const { return folder_ + "/" + name; }

    // Creates or replaces a file with the given bytes, parents included. Fails the test when it can't.
    void Write(const std::string& path, const std::string& bytes) const;

    // The bytes of a file; fails the test when it can't be read.
    static std::string Read(const std::string& path);

    // The standard error stream of this process while `action` runs, as text.
    template <typename Action>
    static std::string StandardErrorOf(Action action) {
        ::testing::internal::CaptureStderr();
        action();
        return ::testing::internal::GetCapturedStderr();
    }

private:
    std::string folder_;
};
