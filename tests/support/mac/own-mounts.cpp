#include "volume.h"

bool EnterOwnMounts() {
    return false;
}
