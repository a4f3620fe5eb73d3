#include "platform/screen.h"

const double platform::kUnscaledDotsPerInch = 96.0;
