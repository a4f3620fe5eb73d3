// What a bundle must be.
#pragma once

#include <string>

#include "package-check.h"

// Adds what is wrong with a bundle: kinds and rights of all that lies in it, what the launcher and the systems read of
// it, and the package, which is read as CheckPackage() does where `package` names no file yet; null leaves it out.
// Where the package is not good, what depends on it is not looked at. `versions` are the bundle's own.
Error CheckBundle(const std::string& bundle, std::int64_t limit, Package* package, VersionInfo& versions,
                  Findings& findings);
