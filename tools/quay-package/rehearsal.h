// The launcher's own code, asked what it makes of a bundle.
#pragma once

#include <string>

#include "package-check.h"

// Unpacks a package that has passed by the launcher's own extractor into a home that is made in `scratch`, and compares
// what is there with the package. Then asks the launcher's own decision whether a start of `bundle` (or, where that is
// empty, of what is installed) would install again. Main thread.
Error Rehearse(const Package& package, const std::string& bundle, const std::string& scratch, Findings& findings);

// Whether a start of the launcher in `binaries` would install or upgrade in this home. Fills the path table for the
// two. The INFO files of both must be regular files or missing: the launcher waits for a FIFO without end. Main thread.
bool IsUpgradeDue(const std::string& home, const std::string& binaries);
