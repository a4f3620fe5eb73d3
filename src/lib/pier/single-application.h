// An application of which one process at a time is to do the work.
#pragma once

#include <QApplication>
#include <QLockFile>

#include <memory>

// A QApplication that can tell whether another process of the same application already runs for the same home folder.
//
// The first process holds a lock file in the user's runtime folder for as long as this object lives. A process that was
// killed leaves the file behind, but its lock is void with its end: the next process takes it over at once, or after a
// tenth of a second if the first was killed before it had written its name. The lock never times
// out: work may take as long as it wants. Where no lock file can be made at all, no other process counts as running: a
// user is never kept from the client by a missing folder. Main thread only.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    // `argc` and `argv` must outlive the object, as for QApplication. `gui` asks for the graphical interface; it is
    // always there in a QApplication, and the argument is part of the class's interface only.
    QtSingleApplication(int& argc, char** argv, bool gui);
    ~QtSingleApplication() override;

    // Whether another process has the lock. Valid before the event loop starts; the first call decides.
    bool isRunning();

    // The path of the lock file: named after the executable and the home folder, so that two homes do not meet.
    static QString LockPath();

private:
    std::unique_ptr<QLockFile> lock_;
    bool decided_ = false;
    bool running_ = false;
};
