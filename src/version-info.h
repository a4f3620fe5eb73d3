// The four versions that an INFO file tells.
#pragma once

#include <optional>
#include <string>

inline constexpr char kVersionGroup[] = "Version";

// UTF-8, as they stand in the file; a key that the file does not have is no value.
struct VersionInfo {
    std::optional<std::string> majorVersion;
    std::optional<std::string> minorVersion;
    std::optional<std::string> buildVersion;
    std::optional<std::string> iconOverlayVersion;
};

// A key of the group, ASCII, and its field.
struct VersionKey {
    const char* name;
    std::optional<std::string> VersionInfo::*field;
};

inline constexpr VersionKey kVersionKeys[] = {
    {"major_version", &VersionInfo::majorVersion},
    {"minor_version", &VersionInfo::minorVersion},
    {"build_version", &VersionInfo::buildVersion},
    {"icon_overlay_version", &VersionInfo::iconOverlayVersion},
};

// Reads the file at `path`, UTF-8. One that is missing or not to be read has no key. A value ends at its first zero
// byte. Any thread. Source: QSettings::IniFormat.
VersionInfo ReadVersionInfo(const std::string& path);

// What a build version counts in a comparison: its leading digits; an empty one is 0. Source: atoi(3).
int BuildNumber(const std::string& version);
