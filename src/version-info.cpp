#include "version-info.h"

#include <QSettings>
#include <cstdlib>

VersionInfo ReadVersionInfo(const std::string& path) {
    QSettings file(QString::fromStdString(path), QSettings::IniFormat);
    file.beginGroup(QString::fromLatin1(kVersionGroup));
    VersionInfo info;
    for (const VersionKey& key : kVersionKeys) {
        const QString name = QString::fromLatin1(key.name);
        if (file.contains(name)) {
            info.*key.field = file.value(name).toString().toUtf8().constData();
        }
    }
    return info;
}

int BuildNumber(const std::string& version) {
    return std::atoi(version.c_str());
}
