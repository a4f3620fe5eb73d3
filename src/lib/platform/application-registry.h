// The system's register of applications.
#pragma once

#include <QString>

namespace platform {

// Removes an application folder from the register of the current user and waits until that is done. Returns 0, also
// when nothing was registered, or a status that is not 0.
//
// macOS: `lsregister -u FOLDER`, with QProcess::execute; the status is the tool's, negative if it did not run.
// Linux: the user's desktop entries whose Exec or TryExec lies in that folder are deleted, and the desktop database is
// refreshed if there was one to delete and the system has a tool for it, which gets ten seconds.
int ForgetApplication(const QString& folder);

// Starts the application in `folder` as a new process that is independent of this one. `executable` is the path of its
// binary, inside the folder. True if the start could be made; what becomes of the application is not seen here.
//
// macOS: `open -n -a FOLDER`, detached; the bundle's own Info.plist names the binary.
// Linux: the executable itself, detached, in a session of its own, in the folder of the executable, with its standard
// streams on the null device, no other descriptor, no signal blocked and none ignored. It is a child of this process
// until that ends. Source: posix_spawn(3).
bool StartApplication(const QString& folder, const QString& executable);

}  // namespace platform
