#include "path-table.h"

#include <QDir>

#include "pier/path-manager.h"

void FillPathTable(const QString& home, const QString& applicationFolder) {
    const QString user = home + "/" + kPrivateFolder;
    const QString application = user + "/" + kApplicationFolder + "/";
    const QString older = home + "/" + kOlderFolder;
    const struct {
        PathKey key;
        QString path;
    } paths[] = {
        {kUserKelvaneQuayPath, user},
        {kUserKelvaneQuayAppPath, application},
        {kUserKelvaneQuayResourcePath, application + kResourcesFolder},
        {kUserKelvaneQuayDataPath, user + "/" + kDataFolder},
        {kUserKelvaneQuayWorkingDirPath, application + kBinariesFolder},
        {kUserKelvaneQuayUiPath, application + kClientFile},
        {kUserTessalyPath, older},
        {kUserTessalyResourcePath, older + "/" + kOlderApplicationFolder + "/" + kResourcesFolder},
        {kRootResourcePath, applicationFolder + "/../" + LastName(kResourcesFolder)},
    };
    for (const auto& entry : paths) {
        UIPathManager::getInstance()->setPath(QString::fromLatin1(entry.key.name), QDir::cleanPath(entry.path));
    }
}

QString TablePath(PathKey key) {
    return UIPathManager::getInstance()->getPath(QString::fromLatin1(key.name));
}
