#include "version-probe.h"

#include <QString>
#include <algorithm>
#include <limits>
#include <sstream>

#include "mac/mac-service.h"
#include "path-table.h"

namespace {

// Opens the service's version fields to the tool.
class Probe : public MacService {
public:
    Versions Source() const {
        return {sourceMajorVersion, sourceMinorVersion, sourceBuildVersion, sourceIconOverlayVersion};
    }
    Versions Target() const {
        return {targetMajorVersion, targetMinorVersion, targetBuildVersion, targetIconOverlayVersion};
    }
};

constexpr char kGroup[] = "[Version]";

// A line without the blanks around it and without what follows an equals sign.
std::string KeyOf(const std::string& line) {
    const std::string key = line.substr(0, line.find('='));
    const std::size_t first = key.find_first_not_of(" \t\r");
    return first == std::string::npos ? std::string() : key.substr(first, key.find_last_not_of(" \t\r") - first + 1);
}

bool IsStampedKey(const std::string& key) {
    return key == "major_version" || key == "minor_version" || key == "build_version" || key == "icon_overlay_version";
}

}  // namespace

Decision Decide(const std::string& home, const std::string& applicationFolder) {
    FillPathTable(QString::fromStdString(home), QString::fromStdString(applicationFolder));
    Probe service;
    service.PreUpgrade();
    const bool isUpgradeNeeded = service.IsNeedUpgrade();
    return {service.Source(), service.Target(), service.PerUserBinPathExist(), isUpgradeNeeded};
}

Versions ReadVersions(const std::string& contents) {
    FillPathTable(QString(), QString::fromStdString(contents + "/MacOS"));
    Probe service;
    service.LoadTargetVersion();
    return service.Target();
}

bool IsBuildNumber(const std::string& text) {
    if (text.empty() || text.size() > 10 || text[0] == '0' ||
        !std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; })) {
        return false;
    }
    return std::stoll(text) <= std::numeric_limits<int>::max();
}

std::string StampedInfo(const Versions& versions, const std::string& present) {
    std::string version = std::string(kGroup) + "\nmajor_version=" + versions.majorVersion +
                          "\nminor_version=" + versions.minorVersion + "\nbuild_version=" + versions.build +
                          "\nicon_overlay_version=" + versions.iconOverlay + "\n";
    std::string others;
    bool inVersion = false;
    std::istringstream lines(present);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const std::string key = KeyOf(line);
        if (!key.empty() && key.front() == '[') {
            inVersion = key == kGroup;
            if (!inVersion) {
                others += line + "\n";
            }
        } else if (!inVersion) {
            others += line + "\n";
        } else if (!key.empty() && !IsStampedKey(key)) {
            version += line + "\n";
        }
    }
    return version + others;
}
