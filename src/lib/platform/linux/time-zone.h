// The time zone of this process.
#pragma once

namespace platform {

// How the environment names the system's own zone, which is also what its absence means.
constexpr char kTimeZoneVariable[] = "TZ";
constexpr char kSystemTimeZone[] = ":/etc/localtime";

}  // namespace platform
