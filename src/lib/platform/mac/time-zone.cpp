#include "platform/process-setup.h"

void platform::KeepTimeZone() {
}
