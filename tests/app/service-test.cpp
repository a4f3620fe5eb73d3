// What of the service nothing in the launcher calls; a run of it is tested end to end.
#include <QCoreApplication>
#include <QDir>

#include "mac/mac-service.h"
#include "package.h"
#include "test-folder.h"

namespace {

using ServiceTest = FolderTest;

TEST_F(ServiceTest, CopiesATree) {
    MacService service;
    Write(At("from/deep/er/file"), "bytes");
    Write(At("from/script"), "#!");
    fs::permissions(At("from/script"), static_cast<fs::perms>(0755));
    fs::create_directories(At("from/empty"));
    fs::create_symlink("script", At("from/link"));
    EXPECT_EQ(service.FSCopyPath(At("from"), At("new/to")), 0);
    // The content alone is copied: modes are those of new files, and links are followed.
    const Tree copied = {{"deep", "755 folder"},  {"deep/er", "755 folder"}, {"deep/er/file", "644 file bytes"},
                         {"empty", "755 folder"}, {"link", "644 file #!"},   {"script", "644 file #!"}};
    EXPECT_EQ(ReadTree(At("new/to")), copied);

    fs::create_symlink("nowhere", At("from/deep/dangling"));
    const std::tuple<std::string, std::string, int, std::string> cases[] = {
        {At("from/script"), At("copy"), 0, ""},
        {At("from/script"), At("no/folder"), 0, "open(" + At("no/folder") + ")"},  // a single file's failure is dropped
        {At("absent"), At("x"), -1, "FSCopyPath: source path '" + At("absent") + "' does not exist\n"},
        {"", At("x"), -1, "FSCopyPath: failed to stat source ''\n"},
        {At("from"), At("copy"), -1, "FSCopyPath: failed to create dest folder '" + At("copy") + "'\n"},
        {At("from"), At("to"), -1, "FSCopyPath: failed to copy from '" + At("from/deep/dangling") + "' to '"}};
    for (const auto& [from, to, result, expected] : cases) {
        const std::string log = StandardErrorOf(
            [&, &one = from, &other = to, expects = result] { EXPECT_EQ(service.FSCopyPath(one, other), expects); });
        EXPECT_NE(log.find(expected), std::string::npos) << log;
    }
    EXPECT_EQ(Read(At("copy")), "#!");
}

TEST_F(ServiceTest, PathsBelowTheApplicationFolder) {
    const PackageInfo info;
    const std::string application = QCoreApplication::applicationDirPath().toStdString();
    EXPECT_EQ(info.imagesPath, application + "/images");
    EXPECT_EQ(info.logPath, QDir::homePath().toStdString() + "/.KelvaneQuay_log");
    EXPECT_EQ(info.debugConfPath, application + "/log/launcher.debug");
    EXPECT_EQ(info.packagePath, application + "/package/tessaly.kpk");
    EXPECT_EQ(info.confPath, application + "/conf");
}

}  // namespace
