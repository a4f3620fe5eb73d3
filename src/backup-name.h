// The names under which an old copy of the client is kept during an install.
#pragma once

#include <string>

// Backup names are tried from index 0 to this one.
constexpr int kLastBackupIndex = 9;

// The backup name of an index for the application folder `path`: "_tmp" behind it and, from index 1 on, the number.
// Bytes in, bytes out; any thread.
std::string GetAppBackupDir(const std::string& path, int index);
