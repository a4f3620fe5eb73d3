#include "platform/application-registry.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <csignal>
#include <string>
#include <vector>

#include "platform/linux/desktop-entry.h"
#include "platform/linux/time-zone.h"

namespace platform {
namespace {

// A user waits for the client, not for a cache.
constexpr int kRefreshMilliseconds = 10000;

// The folder of the user's own desktop entries. Source: the XDG Base Directory and Desktop Menu standards of
// freedesktop.org.
QString EntriesFolder() {
    const QString given = qEnvironmentVariable("XDG_DATA_HOME");
    const QString data = QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/share");
    return data + QStringLiteral("/applications");
}

// Makes the desktop forget what it cached of the folder's entries. A system without the tool has no such cache.
int RefreshDatabase(const QString& folder) {
    QProcess tool;
    tool.setStandardInputFile(QProcess::nullDevice());
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(QStringLiteral("update-desktop-database"), QStringList{folder});
    if (!tool.waitForFinished(kRefreshMilliseconds) && tool.state() != QProcess::NotRunning) {
        tool.kill();
        tool.waitForFinished(-1);
        return -2;
    }
    if (tool.error() == QProcess::FailedToStart) {
        return 0;
    }
    return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -2;
}

// This process's environment without the time zone that KeepTimeZone put into it: the application follows a change. The
// texts stay the environment's.
std::vector<char*> EnvironmentForOthers() {
    const std::string own = std::string(kTimeZoneVariable) + "=" + kSystemTimeZone;
    std::vector<char*> settings;
    for (char** setting = environ; *setting != nullptr; ++setting) {
        if (own != *setting) {
            settings.push_back(*setting);
        }
    }
    settings.push_back(nullptr);
    return settings;
}

}  // namespace

int ForgetApplication(const QString& folder) {
    const QDir entries(EntriesFolder());
    const QStringList names = entries.entryList(QStringList{QStringLiteral("*.desktop")}, QDir::Files | QDir::Hidden);
    bool dropped = false;
    int status = 0;
    for (const QString& name : names) {
        const QString entry = entries.filePath(name);
        if (!DesktopEntryRunsFrom(entry, folder)) {
            continue;
        }
        if (QFile::remove(entry)) {
            dropped = true;
        } else {
            status = -1;
        }
    }
    if (dropped) {
        const int refreshed = RefreshDatabase(entries.path());
        status = status == 0 ? refreshed : status;
    }
    return status;
}

bool StartApplication(const QString& /*folder*/, const QString& executable) {
    const QByteArray path = QFile::encodeName(QFileInfo(executable).absoluteFilePath());
    const QByteArray folder = QFile::encodeName(QFileInfo(executable).absolutePath());

    // Not QProcess: what that starts ignores SIGPIPE, and all signals that this process ignores or blocks. A client
    // that is deaf to SIGTERM could only be killed.
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_t actions;
    if (posix_spawnattr_init(&attributes) != 0) {
        return false;
    }
    if (posix_spawn_file_actions_init(&actions) != 0) {
        posix_spawnattr_destroy(&attributes);
        return false;
    }
    sigset_t all;
    sigset_t none;
    sigfillset(&all);
    sigemptyset(&none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSID);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // What a starter left open by mistake would be held as long as the client runs.
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    posix_spawn_file_actions_addchdir_np(&actions, folder.constData());

    QByteArray name = path;
    char* const arguments[] = {name.data(), nullptr};
    pid_t process = -1;
    const int error =
        posix_spawn(&process, path.constData(), &actions, &attributes, arguments, EnvironmentForOthers().data());
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    return error == 0;
}

}  // namespace platform
