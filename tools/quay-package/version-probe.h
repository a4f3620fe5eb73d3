// The launcher's own reading of versions and its own decision, asked without a start.
#pragma once

#include <string>

// The four values of an INFO file as the launcher reads them, UTF-8.
struct Versions {
    std::string majorVersion;
    std::string minorVersion;
    std::string build;
    std::string iconOverlay;
};

// What the first two steps of a start find out.
struct Decision {
    Versions source;  // of the private copy in the home
    Versions target;  // of the bundle
    bool installed;   // whether the private copy has its binary
    bool isUpgradeNeeded;
};

// Fills the process's path table for this home and for the folder that holds the launcher's binary, and takes these two
// steps: nothing is written anywhere. Main thread; needs a QCoreApplication. Paths are UTF-8.
Decision Decide(const std::string& home, const std::string& applicationFolder);

// The versions in the file Resources/INFO of a folder that is laid like an application's "Contents".
Versions ReadVersions(const std::string& contents);

// Whether the text is a build number that means the same to everyone: digits only, 1 to 2147483647, no leading zero.
bool IsBuildNumber(const std::string& text);

// The bytes of an INFO file: the four values in the group "Version", then what `present`, an INFO file of before, holds
// besides them. The values must be plain words.
std::string StampedInfo(const Versions& versions, const std::string& present);
