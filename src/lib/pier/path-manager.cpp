#include "pier/path-manager.h"

UIPathManager* UIPathManager::getInstance() {
    static UIPathManager instance;
    return &instance;
}

void UIPathManager::setPath(const QString& key, const QString& value) {
    paths_.insert(key, value);
}

QString UIPathManager::getPath(const QString& key) const {
    return paths_.value(key);
}
