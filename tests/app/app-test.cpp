// What no run of the launcher shows of its parts: odd entries, damage behind good ones, and what nothing calls.
#include <QApplication>
#include <QProgressBar>

#include "extractor.h"
#include "launcher.h"
#include "mac/mac-service.h"
#include "path-table.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace {

class AppTest : public FolderTest {
protected:
    AppTest() {
        extractor_.sourcePath = At("package");
        extractor_.destPath = At("out");
        fs::create_directory(At("out"));
    }

    // The message of the last line on standard error while an operation runs that returns `expected`.
    std::string MessageOf(int (Extractor::*operation)(), int expected) {
        const std::string text = StandardErrorOf([&] { EXPECT_EQ((extractor_.*operation)(), expected); });
        return text.substr(text.rfind("): ") + 3);
    }

    Extractor extractor_;
};

TEST_F(AppTest, EachEntryIsWrittenAsItStandsBelowTheFolder) {
    umask(027);
    WritePackage(At("package"),
                 {{"a/", "", S_IFDIR, 0755},
                  {"a/file", "one", S_IFREG, 0755},
                  {"a/link", "../outside", S_IFLNK, 0777},
                  {"/absolute", "lands below", S_IFREG, 0666},
                  {"a/file", "two", S_IFREG, 0600}},
                 "pax");
    Write(At("out/a/file"), "was there before");
    EXPECT_EQ(extractor_.Extract(), 0);
    EXPECT_EQ(ReadTree(At("out")), (Tree{{"a", "750 folder"},
                                         {"a/file", "600 file two"},
                                         {"a/link", "777 link ../outside"},
                                         {"absolute", "640 file lands below"}}));
}

TEST_F(AppTest, ADamageEndsTheCountAndTheWork) {
    WritePackage(At("package"), {{"one", std::string(2000, '1')}, {"two", "2"}, {"three", "3"}}, "ustar");
    std::string bytes = Read(At("package"));
    bytes[512 + 2048 + 1024 + 150] = '!';  // in the third header
    Write(At("package"), bytes);
    EXPECT_EQ(extractor_.Count(), 2);
    EXPECT_EQ(MessageOf(&Extractor::Extract, -1).find("archive_read_next_header failed: '"), 0U);
    EXPECT_EQ(ReadTree(At("out")).size(), 2U);
}

TEST_F(AppTest, EmptyPathsOfAPackage) {
    WritePackage(At("package"), {{"one", "1"}, {"folder/two", "2"}});
    for (std::string* path : {&extractor_.sourcePath, &extractor_.destPath}) {
        const std::string before = std::exchange(*path, "");
        EXPECT_EQ(MessageOf(&Extractor::Extract, -1), "Invalid Argument\n");
        EXPECT_EQ(MessageOf(&Extractor::Count, -1), "Invalid argument\n");
        *path = before;
    }
}

TEST_F(AppTest, ATreeIsCopied) {
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

TEST_F(AppTest, WorkIsDoneOnceInWhateverOrder) {
    FillPathTable(QString::fromStdString(At("home")), QString::fromStdString(At("bundle/Contents/MacOS")));
    for (const bool runsFirst : {true, false}) {
        const std::string log = StandardErrorOf([&] {
            Launcher launcher;
            runsFirst ? launcher.Run() : launcher.Start();
            runsFirst ? void() : QCoreApplication::processEvents();
            runsFirst ? launcher.Start() : launcher.Run();
            QApplication::exec();
            QCoreApplication::processEvents();
            // The product wraps in 32 bits.
            launcher.UpdateProgress(1, 42949673);
            const auto windows = QApplication::topLevelWidgets();
            EXPECT_EQ(windows.first()->findChild<QProgressBar*>()->value(), 4);
        });
        // The bundle has no package: each time the work is done, one line tells of the failed upgrade.
        const std::string line = "Failed to upgrade package\n";
        EXPECT_NE(log.find(line), std::string::npos) << log;
        EXPECT_EQ(log.find(line), log.rfind(line)) << log;
    }
}

}  // namespace

// Its own main: the dialog takes a QApplication, which is also there while the tests are listed.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
