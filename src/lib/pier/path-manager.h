// The process-wide table of well-known paths.
#pragma once

#include <QHash>
#include <QString>

// Key to path. main() fills the table before a second thread starts; afterwards any thread may read it without a lock.
class UIPathManager {
public:
    // The one table; it lives until the process ends.
    static UIPathManager* getInstance();

    // Stores a path as it stands. Main thread, before any other thread.
    void setPath(const QString& key, const QString& value);

    // The path of a key, empty for a key that was never set.
    QString getPath(const QString& key) const;

private:
    UIPathManager() = default;

    QHash<QString, QString> paths_;
};
