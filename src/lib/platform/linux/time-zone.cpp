#include "platform/linux/time-zone.h"

#include <cstdlib>

#include "platform/process-setup.h"

void platform::KeepTimeZone() {
    setenv(kTimeZoneVariable, kSystemTimeZone, 0);
}
