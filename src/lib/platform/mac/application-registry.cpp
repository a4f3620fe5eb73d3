#include "platform/application-registry.h"

#include <QProcess>
#include <QStringList>

namespace platform {

int ForgetApplication(const QString& folder) {
    return QProcess::execute(
        QStringLiteral("/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
                       "lsregister"),
        QStringList{QStringLiteral("-u"), folder});
}

bool StartApplication(const QString& folder, const QString& /*executable*/) {
    // "-n": a new instance even where one runs.
    return QProcess::startDetached(QStringLiteral("/usr/bin/open"),
                                   QStringList{QStringLiteral("-n"), QStringLiteral("-a"), folder});
}

}  // namespace platform
