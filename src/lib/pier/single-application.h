// An application of which one process at a time is to do the work.
#pragma once

#include <QApplication>

#include "posix/handles.h"

// A QApplication that can tell whether another process of the same application already runs for the same home folder.
//
// The first process holds a lock on a file in the user's runtime folder for as long as this object lives. The system
// itself drops the lock with the end of the process, however it ends, and nothing needs to be written: a killed process
// never blocks the next one, a full disk keeps nobody from locking, and the lock never times out. The file stays. Child
// processes don't get it. Where no such file can be made at all, no other process counts as running: a user is never
// kept from the client by that. Main thread only. Source: flock(2).
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    // `argc` and `argv` must outlive the object, as for QApplication. `gui` asks for the graphical interface; it is
    // always there in a QApplication, and the argument is part of the class's interface only. Nothing follows the
    // desktop's settings; which screen is taken, platform::ScreenOptions says.
    QtSingleApplication(int& argc, char** argv, bool gui);

    // Whether another process has the lock. Valid before the event loop starts; the first call decides.
    bool isRunning();

private:
    Fd lock_;  // the locked file
    bool decided_ = false;
    bool running_ = false;
};
