#include "finding.h"

#include <algorithm>
#include <utility>

namespace {

const std::vector<CodeText> kCodes = {
    {Code::NotAnArchive, "the package can't be opened as an archive",
     "the launcher fails at the first look at it, and nobody gets this version", "pack it again"},
    {Code::Damaged, "the archive is damaged",
     "the launcher counts the entries up to the damage, unpacks them, and then rolls back",
     "pack it again, and compare checksums where the file was copied"},
    {Code::NoEntries, "the archive has no entries", "the launcher takes an empty package for a failure",
     "pack the client's folder, not an empty one"},
    {Code::Encrypted, "the entry is encrypted", "the launcher knows no password, the installation fails",
     "pack without encryption"},
    {Code::TooLarge, "unpacked, the package is larger than the limit",
     "old and new copy lie side by side during an upgrade: users with little space get none",
     "leave out what does not belong to the client, or raise --max-unpacked"},
    {Code::UnusualFormat, "the archive is of a format that packages don't have",
     "the launcher would take it, but nothing here is measured or tested with it",
     "pack it with quay-package, as zip or as tar"},

    {Code::NameNotUtf8, "the name is not UTF-8", "macOS refuses such a name, and the installation fails there",
     "rename the file"},
    {Code::NameDotDot, "the name has a \"..\" element", "the launcher fails the whole installation",
     "pack it with quay-package"},
    {Code::NameAbsolute, "the name is absolute", "the launcher puts it below the folder, where nothing looks for it",
     "pack it with quay-package"},
    {Code::NameOddElement, "the name has an empty or a \".\" element",
     "one file can be written under two names, and comparisons by name go wrong", "pack it with quay-package"},
    {Code::NameTwice, "the entry is there twice", "the later one replaces the earlier one, perhaps with older content",
     "leave one of them out"},
    {Code::NameCase, "two names differ in letter case only",
     "a volume that ignores case keeps only one of the two files", "rename one of them"},
    {Code::NameForm, "two names differ in Unicode form only",
     "macOS takes them for one name and keeps only one of the two files", "rename one of them"},
    {Code::NameControl, "the name has a control character", "scripts, logs and people stumble over it",
     "rename the file"},
    {Code::NameTooLong, "the name is too long",
     "a name has at most 255 bytes; with the folder in front the path has at most 1023 on macOS",
     "shorten the name or the names of its folders"},
    {Code::NameOutsideContents, "the entry lies outside \"Contents\"",
     "the inside of the application folder is the top level: the launcher looks for Contents/MacOS/cloud-quay-ui",
     "pack the inside of the application folder"},
    {Code::NameAppleDouble, "an AppleDouble leftover",
     "macOS takes it for attributes of another file, Linux for a file of its own", "delete it and pack again"},
    {Code::NameLitter, "a leftover of a file manager, a version control system or an editor",
     "it tells users about the machine that it was packed on", "delete it and pack again"},
    {Code::NameBackslash, "the name has a backslash", "some unpackers take it for a folder's border",
     "rename the file"},
    {Code::ParentIsNoFolder, "the entry lies below one that is no folder",
     "one of the two can't be written, or replaces the other", "leave one of them out"},
    {Code::NameNotComposed, "the name is not in composed Unicode form (NFC)",
     "the archive library composes it on the way to some systems: the client finds its file under another spelling",
     "rename the file to its composed form"},

    {Code::HardLink, "a hard link", "the launcher leaves its target as it stands, which is not below the folder",
     "pack it with quay-package, which stores a file of its own"},
    {Code::SpecialFile, "a device, a FIFO or a socket",
     "a client's folder has no use for it, and users may not make it", "delete it and pack again"},
    {Code::SetIdBit, "a set-user-id, set-group-id or sticky bit",
     "the launcher drops it: what relies on it does not work", "clear the bit (chmod ug-s,-t)"},
    {Code::UnreadableMode, "the owner can't read it", "the user's own client can't use its file",
     "give the owner the right to read, and to enter a folder"},
    {Code::WorldWritable, "everyone may write to it", "under a lax umask any user of the machine can change the client",
     "clear the bit (chmod o-w)"},
    {Code::ProgramWithoutExecuteBit, "a program without the execute bit", "the client can't start it",
     "set the bit (chmod +x)"},

    {Code::LinkAbsolute, "a symbolic link with an absolute target",
     "it leads out of the folder, to whatever the user's machine has there", "make the link relative"},
    {Code::LinkLeaves, "a symbolic link that leaves the folder", "it leads to whatever the user's machine has there",
     "let it lead to something inside the folder"},
    {Code::BehindLink, "the entry lies behind a symbolic link", "it is written where the link leads",
     "store it under its real name"},
    {Code::LinkDangling, "a symbolic link to nothing", "what opens it fails", "add its target or leave the link out"},
    {Code::LinkLoop, "symbolic links that lead to each other", "what opens one of them fails",
     "let one of them lead to a file or a folder"},
    {Code::LinkTargetOdd, "a symbolic link whose target is empty or not UTF-8",
     "macOS can't make it, and the installation fails", "make the link again"},

    {Code::BinaryMissing, "Contents/MacOS/cloud-quay-ui is missing",
     "the installation succeeds, nothing starts, and each start installs again", "build the client, then pack"},
    {Code::BinaryNotExecutable, "the client's binary is not executable", "the client can't be started",
     "set the bit (chmod +x)"},
    {Code::BinaryNoProgram, "the client's binary is no file with content", "the client can't be started",
     "build the client, then pack"},
    {Code::InfoMissing, "Contents/Resources/INFO is missing",
     "the installed client counts as build 0, and each start installs again",
     "pack with quay-package, which stamps it"},
    {Code::InfoNoBuild, "INFO has no build_version in its group Version",
     "the installed client counts as build 0, and each start installs again", "pack with --build"},
    {Code::InfoBuildNoNumber, "the build_version is no number from 1 to 2147483647",
     "only leading digits count, and nothing counts as 0: the comparison goes wrong", "pack with --build"},
    {Code::InfoNotLast, "INFO is not the last entry",
     "a start that is killed after it leaves half a client that counts as whole", "pack it with quay-package"},
    {Code::BinaryNotSecondToLast, "the client's binary is not the second to last entry",
     "a start that is killed after it leaves half a client that is started", "pack it with quay-package"},
    {Code::InfoIncomplete, "INFO lacks a version other than the build's", "the log can't tell which version it is",
     "pack it with quay-package"},
    {Code::PropertyListMissing, "Contents/Info.plist is missing in a package for macOS",
     "the system does not take the folder for an application and starts nothing", "add it to the client's folder"},
    {Code::PropertyListWrong, "Contents/Info.plist does not name cloud-quay-ui",
     "the system starts something else, or nothing", "set CFBundleExecutable to cloud-quay-ui"},

    {Code::BundleInfoMissing, "the bundle's Contents/Resources/INFO is missing",
     "the bundle counts as build 0, and nobody is upgraded", "make the bundle with quay-package"},
    {Code::BundlePackageMissing, "the bundle's package is missing", "the upgrade fails at every start",
     "make the bundle with quay-package"},
    {Code::BundleBuildDiffers, "bundle and package are not of the same build",
     "where the bundle's build is higher, each start installs again; where it is lower, nobody gets the package",
     "make the bundle with quay-package"},
    {Code::BundleLauncherMissing, "the launcher is missing in the bundle", "there is nothing to start",
     "make the bundle with quay-package"},
    {Code::BundleLauncherNotExecutable, "the launcher is not executable", "the bundle can't be started",
     "set the bit (chmod +x)"},
    {Code::BundleIcon, "the dialog's icon is missing or no PNG image", "the progress dialog has no icon",
     "make the bundle with quay-package, or with --icon"},
    {Code::BundleLevels, "the level file is malformed", "the launcher takes it for an empty one",
     "mend it: a line is COMPONENT=LEVEL"},
    {Code::BundlePropertyListMissing, "the bundle's Info.plist is missing",
     "macOS does not take the folder for an application", "make the bundle with quay-package"},
    {Code::BundlePropertyListWrong, "the bundle's Info.plist does not name the launcher",
     "macOS starts something else, or nothing", "make the bundle with quay-package"},
    {Code::BundleDesktopEntry, "the desktop entry does not start the launcher", "the entry in the menu does nothing",
     "make the bundle with quay-package, and say by --installed-at where it will lie"},
    {Code::BundleVersionDiffers, "bundle and package differ in a version other than the build's",
     "logs of one release show two versions", "make the bundle with quay-package"},
    {Code::BundleBuildNoNumber, "the bundle's build_version is no number from 1 to 2147483647",
     "only leading digits count, and nothing counts as 0: nobody is upgraded", "make the bundle with quay-package"},
    {Code::BundleLitter, "a leftover in the bundle", "it is shipped to every user", "delete it"},
    {Code::BundleMode, "a mode that keeps users from the bundle's files, or a set-user-id bit",
     "who did not install the bundle can't start it; the launcher is not made to run as somebody else",
     "chmod a+rX, chmod ug-s"},

    {Code::RehearsalFailed, "the launcher's own extractor fails", "so it will at every user's",
     "see the line of its log; pack again"},
    {Code::RehearsalMissing, "an entry is not on disk after the rehearsal", "the installed client is not complete",
     "see the other findings: another entry took its place"},
    {Code::RehearsalUnexpected, "something is on disk that is no entry", "an entry was written somewhere else",
     "see the other findings: a link leads there"},
    {Code::RehearsalDiffers, "what is on disk differs from the entry", "the installed client is not what was packed",
     "see the other findings; rehearse on a volume that keeps modes and links"},
    {Code::RehearsalUpgradesAgain, "after the rehearsal the next start would install again",
     "every start takes as long as an installation", "see the other findings about INFO and the binary"},

    {Code::HomeMissing, "there is no such home folder", "the private copy can't be written",
     "make it, or name another"},
    {Code::NotWritable, "no right to write", "the installation fails", "give the user the right to write there"},
    {Code::NoSpace, "too little space", "the installation fails and is rolled back", "make room on the volume"},
    {Code::PathObstructed, "something else stands where a folder must be", "the installation fails",
     "move it out of the way"},
    {Code::ThroughLink, "a folder is reached through a symbolic link",
     "the exact spelling is asked for: the older product's data is not found and not taken over",
     "let the home be named by its real path"},
    {Code::Leftovers, "an earlier installation left something behind",
     "it takes space, and the next upgrade uses another backup name", "delete it once the client runs"},
    {Code::NoBackupName, "all backup names are taken", "the old copy can't be moved aside: every upgrade fails",
     "delete the folders with these names"},
    {Code::OlderDataLost, "both products have data",
     "the older product's data can't be moved, and its folder is removed all the same", "save one of the two first"},
    {Code::PidFileOdd, "the pid file names no running client", "nothing is stopped, or a process that is none of ours",
     "end the client by hand and delete the file"},
    {Code::PackageUnusable, "the bundle's package can't be used", "an upgrade fails and is rolled back",
     "see what `quay-package check` says of the bundle"},
    {Code::UpgradesEachStart, "after the installation the next start would install again",
     "every start takes as long as an installation", "see what `quay-package check` says of the bundle"},
};

}  // namespace

const std::vector<CodeText>& AllCodes() {
    return kCodes;
}

const CodeText& TextOf(Code code) {
    return *std::lower_bound(kCodes.begin(), kCodes.end(), code,
                             [](const CodeText& text, Code wanted) { return text.code < wanted; });
}

std::string IdOf(Code code) {
    return "KQ" + std::to_string(static_cast<int>(code));
}

void Findings::Add(Code code, std::string entry, std::string detail) {
    ++total_;
    auto count = std::find_if(counts_.begin(), counts_.end(), [code](const auto& item) { return item.first == code; });
    if (count == counts_.end()) {
        count = counts_.insert(counts_.end(), {code, 0});
    }
    if (++count->second <= kKeptOfEachCode) {
        kept_.push_back({code, std::move(entry), std::move(detail)});
    }
}

std::size_t Findings::CountOf(Code code) const {
    for (const auto& [known, count] : counts_) {
        if (known == code) {
            return count;
        }
    }
    return 0;
}

std::vector<Finding> Findings::Sorted() const {
    std::vector<Finding> sorted = kept_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& left, const Finding& right) { return left.code < right.code; });
    return sorted;
}
