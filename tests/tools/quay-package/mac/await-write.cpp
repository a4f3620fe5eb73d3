#include "await-write.h"

#include <gtest/gtest.h>

#include <QFileSystemWatcher>
#include <QSignalSpy>

void AwaitWrite(const std::string& folder, const std::function<void()>& start) {
    const QFileSystemWatcher watcher({QString::fromStdString(folder)});
    QSignalSpy changes(&watcher, &QFileSystemWatcher::directoryChanged);
    start();
    ASSERT_TRUE(!changes.isEmpty() || changes.wait(60000)) << "nothing was ever written";
}
