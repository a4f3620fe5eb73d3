#include "single-application.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <cstdio>

#include "path-encoding.h"

namespace {

// A folder that this user alone can write: XDG_RUNTIME_DIR; where it is not set, as in a session of another kind, the
// place where the system keeps it; or one of our own below the folder for temporary files.
// QStandardPaths would do, but it talks to standard error about every machine that sets no XDG_RUNTIME_DIR.
QString RuntimeFolder() {
    for (const QString& given :
         {qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/run/user/%1").arg(getuid())}) {
        const QFileInfo folder(given);
        if (!given.isEmpty() && folder.isDir() && folder.isWritable()) {
            return given;
        }
    }
    const QString own =
        QDir::tempPath() + QStringLiteral("/%1-%2").arg(QCoreApplication::applicationName()).arg(getuid());
    const QByteArray path = QFile::encodeName(own);
    mkdir(path.constData(), S_IRWXU);
    struct stat info = {};
    // The folder for temporary files belongs to everybody: a stranger's folder of that name, or a link, is not ours.
    if (lstat(path.constData(), &info) != 0 || !S_ISDIR(info.st_mode) || info.st_uid != getuid()) {
        return QDir::homePath();
    }
    return own;
}

// Qt warns of what it finds odd about the machine: no XDG_RUNTIME_DIR, a character set that is not UTF-8. That is none
// of the user's business, and a program that goes on well says nothing. What ends the program is still told.
void DropWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    }
}

// What must be settled before Qt's first look at the machine, which it takes while the application is being built.
int& Prepare(int& argc) {
    qInstallMessageHandler(DropWarnings);
    UsePathsInUtf8();
    return argc;
}

// Takes a lock file over that QLockFile leaves alone although nobody holds it: one that its maker did not live to write
// its process id into, or whose process id now belongs to another process of the same name, perhaps to this one. Who
// holds the file has it locked with flock(2) as well, from before it says who he is; a file that says nothing may
// therefore be one that is just being made. Returns whether the lock is ours now.
bool TakeOver(QLockFile& lock) {
    constexpr unsigned long kMakingMilliseconds = 100;
    qint64 process = 0;
    QString host;
    QString application;
    if (!lock.getLockInfo(&process, &host, &application)) {
        QThread::msleep(kMakingMilliseconds);
    }
    return lock.removeStaleLockFile() && lock.tryLock(0);
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool gui) : QApplication(Prepare(argc), argv) {
    Q_UNUSED(gui)
}

QtSingleApplication::~QtSingleApplication() = default;

QString QtSingleApplication::LockPath() {
    QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    if (home.isEmpty()) {
        home = QDir::homePath();
    }
    const QByteArray digest = QCryptographicHash::hash(home.toUtf8(), QCryptographicHash::Sha1).toHex();
    return RuntimeFolder() +
           QStringLiteral("/%1-%2.lock").arg(QCoreApplication::applicationName(), QString::fromLatin1(digest));
}

bool QtSingleApplication::isRunning() {
    if (!decided_) {
        lock_ = std::make_unique<QLockFile>(LockPath());
        lock_->setStaleLockTime(0);
        running_ = !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError && !TakeOver(*lock_);
        decided_ = true;
    }
    return running_;
}
