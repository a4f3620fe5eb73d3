#include "platform/screen.h"

const double platform::kUnscaledDotsPerInch = 72.0;
