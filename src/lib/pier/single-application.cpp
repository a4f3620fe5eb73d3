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
    static Arguments arguments(argc, argv);
    return arguments;
}

// Whether the folder is this user's and nobody else may write it: what lies in it is then no stranger's doing.
bool IsPrivate(const QString& folder) {
    struct stat info = {};
    return lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == getuid() && (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// The folders that may hold the lock, the best first: XDG_RUNTIME_DIR; where that is not set, as in a session of
// another kind, the place where the system keeps it; and one of our own below the folder for temporary files.
// QStandardPaths would do for the first, but it talks to standard error about every machine that does not set it.
QStringList RuntimeFolders() {
    const QString own =
        QDir::tempPath() + QStringLiteral("/%1-%2").arg(QCoreApplication::applicationName()).arg(getuid());
    mkdir(QFile::encodeName(own).constData(), S_IRWXU);
    QStringList folders;
    for (const QString& folder :
         {qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/run/user/%1").arg(getuid()), own}) {
        if (!folder.isEmpty() && IsPrivate(folder)) {
            folders << folder;
        }
    }
    return folders;
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
// removed: the folder is this user's alone. -1 where that can't be done.
int OpenLockFile(const QByteArray& path) {
    for (int attempt = 0; attempt < 2; ++attempt) {
        // Reading is enough for a lock, and a file that another user made may allow no more.
        const int descriptor = open(path.constData(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0644);
        struct stat info = {};
        if (descriptor >= 0 && fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode)) {
            return descriptor;
        }
        if (descriptor >= 0) {
            close(descriptor);
        }
        std::remove(path.constData());
    }
    return -1;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool gui)
    : QApplication(ForQt(argc, argv).count, ForQt(argc, argv).values.data()) {
    Q_UNUSED(gui)
}

QtSingleApplication::~QtSingleApplication() {
    if (lock_ >= 0) {
        close(lock_);
    }
}

bool QtSingleApplication::isRunning() {
    if (decided_) {
        return running_;
    }
    decided_ = true;
    const QString name = LockName();
    for (const QString& folder : RuntimeFolders()) {
        const int descriptor = OpenLockFile(QFile::encodeName(folder + name));
        if (descriptor < 0) {
            continue;
        }
        if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
            lock_ = descriptor;
            break;
        }
        running_ = errno == EWOULDBLOCK;
        close(descriptor);
        if (running_) {
            break;
        }
    }
    return running_;
}
