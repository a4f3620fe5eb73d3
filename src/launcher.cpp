#include "launcher.h"

#include <poll.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QImageReader>
#include <QLocale>
#include <QPalette>
#include <QPixmap>
#include <climits>
#include <cstdint>

#include "log/log-statement.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "path-table.h"
#include "pier/dpi-info.h"
#include "resources/str-table.h"

namespace {

constexpr char kComponent[] = "launcher_debug";

// The size of the dialog on an unscaled screen.
constexpr double kDialogWidth = 400.0;
constexpr double kDialogHeight = 80.0;

// How long the shown dialog lets signals gather.
constexpr int kPauseMilliseconds = 4;

// Colours that can be read on the style sheet's WhiteSmoke: black text on light ground, and a bar that is dark enough
// for white text.
QPalette PaletteOnWhiteSmoke() {
    QPalette palette(Qt::lightGray, QColor(0xF5, 0xF5, 0xF5));
    palette.setColor(QPalette::Highlight, QColor(0x1A, 0x55, 0x96));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags()) {
    const QFont font = QApplication::font();
    // Said to be what it is: to find that out, Qt would load every plugin for images that the system has.
    QImageReader icon(TablePath(kRootResourcePath) + InResources(kIconFile), "PNG");
    icon.setAutoDetectImageFormat(false);
    setWindowTitle(StrTable::LoadStr(StrTable::kRowAppName));
    setWindowIcon(QIcon(QPixmap::fromImageReader(&icon)));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStrWithAppName(StrTable::kRowInitializing));
    setFont(font);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    const int width = static_cast<int>(DPIinfo::getInstance()->getDPI() * kDialogWidth);
    const int height = static_cast<int>(DPIinfo::getInstance()->getDPI() * kDialogHeight);
    setFixedSize(width, height);
    setStyleSheet(DPIinfo::getInstance()->getScaledStyleSheet(
        QStringLiteral("QProgressDialog { background-color: WhiteSmoke; vertical-align: middle; }")));
    // No language that the dialog speaks writes numbers in digits of its own, as some systems' locales do.
    setLocale(QLocale::c());
    // The sheet says nothing of the text, which would take the desktop's colour: white, where that is dark. The parts
    // get the palette one by one, since a desktop may have one of its own for labels or bars.
    const QPalette palette = PaletteOnWhiteSmoke();
    setPalette(palette);
    for (QWidget* part : findChildren<QWidget*>()) {
        part->setPalette(palette);
    }
}

ProcessingProgressDialog::~ProcessingProgressDialog() = default;

void HandlerThread::run() {
    exec();
}

Worker::Worker() : QObject(nullptr), thread(nullptr), service(nullptr) {
    service = new MacService;
    thread = new HandlerThread;
    moveToThread(thread);
}

Worker::~Worker() {
    delete thread;
    delete service;
}

void Worker::StartThread() {
    thread->start(QThread::InheritPriority);
}

void Worker::QuitThread() {
    thread->quit();
}

void Worker::JoinThread() {
    thread->wait(ULONG_MAX);
}

bool Worker::IsThreadRunning() const {
    return thread->isRunning();
}

void Worker::Upgrade() {
    Q_EMIT sigShowMsg();
    if (service->HandlePackageUpgrade() != 0) {
        // The user is told nothing: the run goes on to the launch of whatever copy there is.
        KQ_LOG_ERROR(kComponent, "Failed to upgrade package\n");
        return;
    }
    Q_EMIT sigUpdateProgress(100, 100);
    Q_EMIT sigSetLabelText(StrTable::LoadStrWithAppName(StrTable::kRowReady));
}

void Worker::HandleServicce() {
    KQ_LOG_DEBUG(kComponent, "running\n");
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        Upgrade();
    } else {
        KQ_LOG_DEBUG(kComponent, "no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
    KQ_LOG_DEBUG(kComponent, "done\n");
    Q_EMIT sigServiceDone();
}

Launcher::Launcher() : QObject(nullptr), worker(nullptr), progressDialog(nullptr) {
    worker = new Worker;
    progressDialog = new ProcessingProgressDialog;
    progressDialog->setCancelButton(nullptr);
    progressDialog->setAutoReset(false);
    // Clears the dialog's window modality as well, so that setting a value never serves the event loop from inside.
    progressDialog->setModal(false);
    // Esc closes the dialog even so, and the application's last window with it: the work goes on until LaunchDone.
    QApplication::setQuitOnLastWindowClosed(false);
    // Each entry of a package sends a signal, and to be woken by each would take a seventh of an upgrade's time. By
    // poll: whoever traces the calls that sleep sees those alone that wait for an old client's end.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (progressDialog->isVisible()) {
            poll(nullptr, 0, kPauseMilliseconds);
        }
    });

    connect(this, &Launcher::sigStart, worker, &Worker::HandleServicce);
    connect(worker, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
    connect(worker, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
    connect(worker, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(worker, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
    connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);
}

Launcher::~Launcher() {
    delete worker;
    delete progressDialog;
}

void Launcher::Run() {
    worker->StartThread();
    if (!worker->IsThreadRunning()) {
        // The system gave no thread. The client is to start all the same: the work is done here, from within the event
        // loop, and the dialog stands still meanwhile.
        disconnect(this, &Launcher::sigStart, worker, nullptr);
        connect(
            this, &Launcher::sigStart, this, [this] { worker->HandleServicce(); }, Qt::QueuedConnection);
    }
}

void Launcher::Start() {
    Q_EMIT sigStart();
}

void Launcher::UpdateProgress(int total, int steps) {
    // In 32 bits, as is required: a product that is too large for them wraps.
    progressDialog->setValue(static_cast<std::int32_t>(static_cast<std::uint32_t>(steps) * 100U) / total);
}

void Launcher::SetLabelText(const QString& text) {
    progressDialog->setLabelText(text);
}

void Launcher::ShowMsgBox() {
    progressDialog->show();
}

void Launcher::LaunchDone() {
    progressDialog->setValue(100);
    progressDialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    QCoreApplication::quit();
}
