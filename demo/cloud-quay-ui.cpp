// A small client: a window that shows its version, and the manners that the launcher relies on.
//
// It reads its version from the INFO file of the folder that it runs from, writes its process id to "ui.pid" in the
// user's private folder once its window is up, and quits cleanly on SIGTERM, taking the pid file with it. Where another
// client already runs for this user it leaves at once.
//
// For those who try a launcher on it, the environment may ask for bad manners: CLOUD_QUAY_QUIT_AFTER=SECONDS delays the
// answer to SIGTERM, CLOUD_QUAY_DEAF=1 leaves it without one.
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <cerrno>
#include <csignal>
#include <cstdio>

namespace {

// The signal handler writes to one end, the event loop reads from the other. Source: signal-safety(7).
int signalPipe[2] = {-1, -1};

void OnSignal(int /*signal*/) {
    const int error = errno;
    const char byte = 1;
    if (write(signalPipe[1], &byte, 1) != 1) {
        _exit(1);
    }
    errno = error;
}

QString PidFile() {
    return QDir::homePath() + QStringLiteral("/.KelvaneQuay/ui.pid");
}

bool WritePidFile() {
    QSaveFile file(PidFile());
    return file.open(QIODevice::WriteOnly) &&
           file.write(QByteArray("pid=") + QByteArray::number(getpid()) + '\n') > 0 && file.commit();
}

// Lets SIGTERM end the event loop, sooner or later.
bool QuitOnSigterm(QCoreApplication& application, int delaySeconds) {
    if (pipe(signalPipe) != 0) {
        return false;
    }
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [notifier, delaySeconds] {
        notifier->setEnabled(false);
        QTimer::singleShot(delaySeconds * 1000, [] { QCoreApplication::quit(); });
    });
    struct sigaction action = {};
    action.sa_handler = OnSignal;
    return sigaction(SIGTERM, &action, nullptr) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // A client that was just told to quit has a second to do so.
    QLockFile lock(QDir::homePath() + QStringLiteral("/.KelvaneQuay/ui.lock"));
    lock.setStaleLockTime(0);
    if (!lock.tryLock(1000) && lock.error() == QLockFile::LockFailedError) {
        return 0;
    }
    QSettings info(QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/INFO"), QSettings::IniFormat);
    const QString build = info.value(QStringLiteral("Version/build_version"), QStringLiteral("?")).toString();

    if (qEnvironmentVariableIntValue("CLOUD_QUAY_DEAF") != 0) {
        std::signal(SIGTERM, SIG_IGN);
    } else if (!QuitOnSigterm(application, qEnvironmentVariableIntValue("CLOUD_QUAY_QUIT_AFTER"))) {
        std::perror("cloud-quay-ui");
        return 1;
    }

    QWidget window;
    window.setWindowTitle(QStringLiteral("Kelvane Quay"));
    auto* layout = new QVBoxLayout(&window);
    auto* label = new QLabel(QStringLiteral("Kelvane Quay, build %1").arg(build), &window);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
    window.resize(320, 120);
    window.show();

    if (!WritePidFile()) {
        std::fprintf(stderr, "cloud-quay-ui: can't write %s\n", qPrintable(PidFile()));
        return 1;
    }
    const int result = QApplication::exec();
    QFile::remove(PidFile());
    return result;
}
