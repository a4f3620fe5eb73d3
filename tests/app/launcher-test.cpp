// What of the launcher's two halves a run never shows; the dialog is tested end to end.
#include "launcher.h"

#include <QApplication>
#include <QProgressBar>

#include "path-table.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace {

using LauncherTest = FolderTest;

TEST_F(LauncherTest, WorkIsDoneOnceInWhateverOrder) {
    StrTable::InitStrTable();
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
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
