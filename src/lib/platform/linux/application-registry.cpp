#include "application-registry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>

#include "desktop-entry.h"

namespace platform {
namespace {

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
    tool.waitForFinished(-1);
    if (tool.error() == QProcess::FailedToStart) {
        return 0;
    }
    return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -2;
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
    QProcess application;
    application.setProgram(executable);
    application.setWorkingDirectory(QFileInfo(executable).path());
    application.setStandardInputFile(QProcess::nullDevice());
    application.setStandardOutputFile(QProcess::nullDevice());
    application.setStandardErrorFile(QProcess::nullDevice());
    // QProcess puts a detached process into a session of its own.
    return application.startDetached();
}

}  // namespace platform
