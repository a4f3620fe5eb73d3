// What of the launcher's two halves a run never shows; the dialog is tested end to end.
#include "launcher.h"

#include <QApplication>
#include <QProgressBar>

#include "path-table.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace {

class WorkTest : public FolderTest {
protected:
    WorkTest() {
        StrTable::InitStrTable();
        FillPathTable(QString::fromStdString(At("home")), QString::fromStdString(At("bundle/Contents/MacOS")));
    }
};

TEST_F(WorkTest, IsDoneOnceInWhateverOrder) {
    void (*const orders[])(Launcher&) = {[](Launcher& launcher) {
                                             launcher.Run();
                                             launcher.Start();
                                         },
                                         [](Launcher& launcher) {
                                             launcher.Start();
                                             QCoreApplication::processEvents();
                                             launcher.Run();
                                         }};
    for (const auto run : orders) {
        const std::string log = StandardErrorOf([run] {
            Launcher launcher;
            run(launcher);
            QApplication::exec();
            QCoreApplication::processEvents();
        });
        // The bundle has no package: each time the work is done, one line tells of the failed upgrade.
        const std::string line = "Failed to upgrade package\n";
        EXPECT_NE(log.find(line), std::string::npos) << log;
        EXPECT_EQ(log.find(line), log.rfind(line)) << log;
    }
}

TEST_F(WorkTest, ProgressWrapsIn32Bits) {
    Launcher launcher;
    launcher.UpdateProgress(1, 42949673);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        EXPECT_EQ(widget->findChild<QProgressBar*>()->value(), 4);
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
