#include "path-table.h"

#include <QDir>

#include "path-manager.h"

void FillPathTable(const QString& home, const QString& applicationFolder) {
    const struct {
        const char* key;
        const QString& base;
        const char* below;
    } paths[] = {
        {"user_kelvane_quay_path", home, "/.KelvaneQuay"},
        {"user_kelvane_quay_app_path", home, "/.KelvaneQuay/KelvaneQuay.app"},
        {"user_kelvane_quay_resource_path", home, "/.KelvaneQuay/KelvaneQuay.app/Contents/Resources"},
        {"user_kelvane_quay_data_path", home, "/.KelvaneQuay/data"},
        {"user_kelvane_quay_working_dir_path", home, "/.KelvaneQuay/KelvaneQuay.app/Contents/MacOS"},
        {"user_kelvane_quay_ui_path", home, "/.KelvaneQuay/KelvaneQuay.app/Contents/MacOS/cloud-quay-ui"},
        {"user_tessaly_path", home, "/.Tessaly"},
        {"user_tessaly_resource_path", home, "/.Tessaly/Tessaly.app/Contents/Resources"},
        {"root_resource_path", applicationFolder, "/../Resources"},
    };
    for (const auto& entry : paths) {
        UIPathManager::getInstance()->setPath(QString::fromLatin1(entry.key),
                                              QDir::cleanPath(entry.base + entry.below));
    }
}

QString TablePath(const char* key) {
    return UIPathManager::getInstance()->getPath(QString::fromLatin1(key));
}
