#include "launcher.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

#include "notify-adapter.h"
#include "path-table.h"
#include "pier/dpi-info.h"
#include "resources/str-table.h"
#include "test-folder.h"

namespace {

constexpr char kInitializing[] = "Kelvane Quay Client is initializing...";

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

// The dialog as the launcher has set it up, found the way the user finds it.
ProcessingProgressDialog* TheDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) {
            return dialog;
        }
    }
    return nullptr;
}

TEST(Dialog, IsBuiltAsAskedFor) {
    StrTable::InitStrTable();
    QApplication::setFont(QFont(Text("Arial"), 12, -1, false));
    ProcessingProgressDialog dialog;
    EXPECT_EQ(dialog.windowTitle(), Text("Kelvane Quay Client"));
    EXPECT_EQ(dialog.labelText(), Text(kInitializing));
    EXPECT_EQ(dialog.minimum(), 0);
    EXPECT_EQ(dialog.maximum(), 100);
    EXPECT_EQ(dialog.windowFlags() & ~Qt::WindowType_Mask, Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog.font().family(), Text("Arial"));
    EXPECT_EQ(dialog.font().pointSize(), 12);
    EXPECT_TRUE(dialog.styleSheet().contains(Text("WhiteSmoke")));
    EXPECT_FALSE(dialog.isVisible());
    const double scale = DPIinfo::getInstance()->getDPI();
    EXPECT_EQ(dialog.size(), QSize(static_cast<int>(scale * 400), static_cast<int>(scale * 80)));
    if (qEnvironmentVariableIsSet("QT_FONT_DPI")) {
        // Qt 6 does the scaling itself: there the ratio of the device's pixels grows in place of the dialog.
        const double expected = qEnvironmentVariableIntValue("QT_FONT_DPI") / 96.0;
        EXPECT_DOUBLE_EQ(scale * dialog.devicePixelRatioF(), expected);
    }
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
}

TEST(LauncherTest, ShowsWhatTheAdapterReportsFromAnotherThread) {
    StrTable::InitStrTable();
    Launcher launcher;
    ProcessingProgressDialog* dialog = TheDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty()) << "there is no way to cancel";
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_FALSE(dialog->isModal());
    launcher.ShowMsgBox();
    EXPECT_TRUE(dialog->isVisible());

    QSignalSpy changes(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged);
    std::unique_ptr<QThread> thread(QThread::create([] {
        Notify_Adapter::GetInstance()->UpdateDialogText(Text("unpacking"));
        for (int current = 1; current <= 7; ++current) {
            Notify_Adapter::GetInstance()->UpdateProgress(7, current);
        }
    }));
    thread->start();
    thread->wait();
    EXPECT_EQ(dialog->labelText(), Text(kInitializing)) << "nothing reaches the dialog but through the event loop";
    QCoreApplication::sendPostedEvents(&launcher);
    EXPECT_EQ(dialog->labelText(), Text("unpacking"));
    QList<int> values;
    for (const QList<QVariant>& change : changes) {
        values << change.first().toInt();
    }
    EXPECT_EQ(values, (QList<int>{14, 28, 42, 57, 71, 85, 100})) << "each report is shown, in order, truncated";

    launcher.UpdateProgress(100, 100);
    EXPECT_TRUE(dialog->isVisible()) << "the full bar stays until the end of the run";
    launcher.UpdateProgress(1, 42949673);
    EXPECT_EQ(dialog->value(), 4) << "the product wraps in 32 bits";
}

TEST(LauncherTest, ReachesThoseWhoCannotSeeTheDialog) {
    StrTable::InitStrTable();
    Launcher launcher;
    ProcessingProgressDialog* dialog = TheDialog();
    launcher.ShowMsgBox();
    launcher.UpdateProgress(100, 42);
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(dialog);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->text(QAccessible::Name), Text("Kelvane Quay Client"));
    QStringList labels;
    QVariant value;
    for (int child = 0; child < window->childCount(); ++child) {
        QAccessibleInterface* part = window->child(child);
        if (part->role() == QAccessible::StaticText) {
            labels << part->text(QAccessible::Name);
        }
        if (part->role() == QAccessible::ProgressBar) {
            ASSERT_NE(part->valueInterface(), nullptr);
            value = part->valueInterface()->currentValue();
        }
    }
    EXPECT_EQ(labels, QStringList{Text(kInitializing)});
    EXPECT_EQ(value.toInt(), 42);
}

TEST(LauncherTest, ClosingTheDialogChangesNothingInTheWork) {
    StrTable::InitStrTable();
    Launcher launcher;
    launcher.ShowMsgBox();
    TheDialog()->close();
    launcher.UpdateProgress(100, 50);
    launcher.SetLabelText(Text("still at work"));
    EXPECT_EQ(TheDialog()->labelText(), Text("still at work"));
}

class WorkTest : public FolderTest {};

TEST_F(WorkTest, IsDoneOnceInWhateverOrder) {
    const struct {
        const char* order;
        void (*steps)(Launcher& launcher);
    } kOrders[] = {
        {"run, start",
         [](Launcher& launcher) {
             launcher.Run();
             launcher.Start();
         }},
        {"start, run",
         [](Launcher& launcher) {
             launcher.Start();
             QCoreApplication::processEvents();
             launcher.Run();
         }},
    };
    StrTable::InitStrTable();
    FillPathTable(QString::fromStdString(At("home")), QString::fromStdString(At("bundle/Contents/MacOS")));
    for (const auto& [order, steps] : kOrders) {
        const std::string log = StandardErrorOf([run = steps] {
            Launcher launcher;
            run(launcher);
            QApplication::exec();
            QCoreApplication::processEvents();
        });
        // The bundle has no package: each time the work is done, one line tells of the failed upgrade.
        const std::string line = "Failed to upgrade package\n";
        EXPECT_NE(log.find(line), std::string::npos) << order << ": " << log;
        EXPECT_EQ(log.find(line), log.rfind(line)) << order << ": " << log;
    }
}

}  // namespace
