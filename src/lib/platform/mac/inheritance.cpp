#include "platform/inheritance.h"

void SetHandleFlagInheritFalse(std::FILE* /*stream*/) {
}
