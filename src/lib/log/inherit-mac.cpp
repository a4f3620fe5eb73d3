#include "log-file.h"

// Deliberately nothing: applications are started by the system's own launch service here and don't descend from this
// process.
void SetHandleFlagInheritFalse(std::FILE* /*stream*/) {
}
