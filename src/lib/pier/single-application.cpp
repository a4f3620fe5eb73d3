#include "pier/single-application.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "platform/screen.h"

namespace {

// The arguments as Qt gets them: the system's options between the program's name and the user's own.
struct Arguments {
    Arguments(int argc, char** argv) : options(platform::ScreenOptions()), values(argv, argv + argc) {
        std::vector<char*> added;
        for (std::string& option : options) {
            added.push_back(option.data());
        }
        values.insert(values.begin() + qMin(argc, 1), added.begin(), added.end());
        count = static_cast<int>(values.size());
        values.push_back(nullptr);
    }

    std::vector<std::string> options;
    std::vector<char*> values;
    int count = 0;
};

// They stay until the process ends, as Qt asks; only the first call's are taken.
Arguments& ForQt(int argc, char** argv) {
    // Nothing that is drawn follows the desktop, and a theme such as GTK's takes as long to load as all else together.
    QApplication::setDesktopSettingsAware(false);
    static Arguments arguments(argc, argv);
    return arguments;
}

// Whether the folder is this user's and nobody else can write to it, so that no stranger has put anything there.
bool IsPrivate(const QString& folder) {
    struct stat info = {};
    return lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == getuid() && (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// The folders that may hold the lock, the best first: XDG_RUNTIME_DIR; the place where the system keeps it, for a
// session that does not set it; and one of our own below the folder for temporary files.
QStringList RuntimeFolders() {
    return {qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/run/user/%1").arg(getuid()),
            QDir::tempPath() + QStringLiteral("/%1-%2").arg(QCoreApplication::applicationName()).arg(getuid())};
}

// Named after the executable and the home folder, so that two homes do not meet.
QString LockName() {
    QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    if (home.isEmpty()) {
        home = QDir::homePath();
    }
    const QByteArray digest = QCryptographicHash::hash(home.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("/%1-%2.lock").arg(QCoreApplication::applicationName(), QString::fromLatin1(digest));
}

// Opens the lock file, which is made where it is missing. Anything else in its place (a folder, a link, a FIFO) is
// removed: the folder is this user's alone. None where that can't be done.
Fd OpenLockFile(const QByteArray& path) {
    for (int attempt = 0; attempt < 2; ++attempt) {
        // For reading: that is enough for a lock, and another user's file may allow no more.
        Fd file(open(path.constData(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0644));
        struct stat info = {};
        if (file && fstat(file.get(), &info) == 0 && S_ISREG(info.st_mode)) {
            return file;
        }
        std::remove(path.constData());
    }
    return Fd();
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool gui)
    : QApplication(ForQt(argc, argv).count, ForQt(argc, argv).values.data()) {
    Q_UNUSED(gui)
}

bool QtSingleApplication::isRunning() {
    if (decided_) {
        return running_;
    }
    decided_ = true;
    const QString name = LockName();
    const QStringList folders = RuntimeFolders();
    for (const QString& folder : folders) {
        if (folder == folders.last()) {
            // Made only now that no other folder will do.
            mkdir(QFile::encodeName(folder).constData(), S_IRWXU);
        }
        Fd file = IsPrivate(folder) ? OpenLockFile(QFile::encodeName(folder + name)) : Fd();
        if (!file) {
            continue;
        }
        if (flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
            lock_ = std::move(file);
            break;
        }
        if (errno == EWOULDBLOCK) {
            running_ = true;
            break;
        }
    }
    return running_;
}
