#include "log-file.h"

// Deliberately nothing: the only child here is /usr/bin/open, which has the client started by the system's own launch
// service, so that the client doesn't descend from this process.
void SetHandleFlagInheritFalse(std::FILE* /*stream*/) {
}
