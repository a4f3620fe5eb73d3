// What of the service nothing in the launcher calls; a run of it is tested end to end.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <filesystem>

#include "mac/mac-service.h"
#include "package.h"
#include "test-folder.h"

namespace fs = std::filesystem;

namespace {

class CopyPathTest : public FolderTest {
protected:
    MacService service_;
};

TEST_F(CopyPathTest, CopiesATree) {
    Write(At("from/deep/er/file"), "bytes");
    Write(At("from/script"), "#!");
    fs::permissions(At("from/script"), static_cast<fs::perms>(0755));
    fs::create_directories(At("from/empty"));
    fs::create_symlink("script", At("from/link"));
    EXPECT_EQ(service_.FSCopyPath(At("from"), At("new/to")), 0);
    // The content alone is copied: modes are those of new files, and links are followed.
    const Tree expected = {{"deep", "755 folder"},  {"deep/er", "755 folder"}, {"deep/er/file", "644 file bytes"},
                           {"empty", "755 folder"}, {"link", "644 file #!"},   {"script", "644 file #!"}};
    EXPECT_EQ(ReadTree(At("new/to")), expected);
}

TEST_F(CopyPathTest, WhatCountsAsAFailure) {
    Write(At("file"), "bytes");
    EXPECT_EQ(service_.FSCopyPath(At("file"), At("copy")), 0);
    EXPECT_EQ(Read(At("copy")), "bytes");
    std::string errors = StandardErrorOf([&] {
        EXPECT_EQ(service_.FSCopyPath(At("file"), At("no/such/folder")), 0) << "a single file's failure is dropped";
    });
    errors = StandardErrorOf([&] { EXPECT_EQ(service_.FSCopyPath(At("absent"), At("x")), -1); });
    EXPECT_NE(errors.find("FSCopyPath: source path '" + At("absent") + "' does not exist\n"), std::string::npos);
    errors = StandardErrorOf([&] { EXPECT_EQ(service_.FSCopyPath("", At("x")), -1); });
    EXPECT_NE(errors.find("FSCopyPath: failed to stat source ''\n"), std::string::npos);
    fs::create_directories(At("folder"));
    errors = StandardErrorOf([&] { EXPECT_EQ(service_.FSCopyPath(At("folder"), At("file")), -1); });
    EXPECT_NE(errors.find("FSCopyPath: failed to create dest folder '" + At("file") + "'\n"), std::string::npos);
    // Within a folder a failed file counts: here a dangling link.
    fs::create_symlink("nowhere", At("folder/link"));
    errors = StandardErrorOf([&] { EXPECT_EQ(service_.FSCopyPath(At("folder"), At("to")), -1); });
    EXPECT_NE(errors.find("FSCopyPath: failed to copy from '" + At("folder/link") + "' to '" + At("to/link") + "'\n"),
              std::string::npos);
}

TEST(PackageInfoTest, PathsBelowTheApplicationFolder) {
    const PackageInfo info;
    const std::string application = QCoreApplication::applicationDirPath().toStdString();
    EXPECT_EQ(info.imagesPath, application + "/images");
    EXPECT_EQ(info.logPath, QDir::homePath().toStdString() + "/.KelvaneQuay_log");
    EXPECT_EQ(info.debugConfPath, application + "/log/launcher.debug");
    EXPECT_EQ(info.packagePath, application + "/package/tessaly.kpk");
    EXPECT_EQ(info.confPath, application + "/conf");
}

TEST(MacServiceTest, TheSharedObjectIsOneAndNoOtherIsIt) {
    EXPECT_EQ(MacService::GetInstace(), MacService::GetInstace());
    MacService own;
    EXPECT_NE(&own, MacService::GetInstace());
}

}  // namespace
