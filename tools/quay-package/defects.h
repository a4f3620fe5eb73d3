// What can be wrong with a package, a bundle or a home: one object each, under a number that stays the same.
#pragma once

#include <array>

// The hundreds say what a number is about: 1 the archive, 2 names, 3 types and modes, 4 symbolic links, 5 what a
// package must hold, 6 the bundle, 7 the rehearsal, 8 the next start in a home, 9 the private copy. A number that is no
// longer used is never given another meaning; such are 810 and 811.
struct Defect {
    int code;          // shown as "KQ" and the number
    const char* what;  // the defect in a few words
    const char* why;   // why it matters
    const char* mend;  // how to mend it
};

namespace defects {

template <typename... Each>
constexpr std::array<const Defect*, sizeof...(Each)> Pointers(const Each&... each) {
    return {&each...};
}

constexpr char kRepack[] = "pack it with quay-package";
constexpr char kRebundle[] = "make the bundle with quay-package";

// A row is laid as it fits.
// clang-format off
constexpr Defect NoZip{101, "the package is no zip archive",
    "packages are zip archives and nothing else: other formats install damaged without a word", kRepack};
constexpr Defect Damaged{102, "the archive is damaged",
    "the launcher counts the entries up to the damage, unpacks them, and then rolls back",
    "pack it again, and compare checksums where the file was copied"};
constexpr Defect NoEntries{103, "the archive has no entries", "the launcher takes an empty package for a failure",
    "pack the client's folder, not an empty one"};
constexpr Defect Encrypted{104, "the entry is encrypted", "the launcher knows no password, the installation fails",
    "pack without encryption"};
constexpr Defect TooLarge{105, "unpacked, the package is larger than the limit",
    "old and new copy lie side by side during an upgrade: users with little space get none",
    "leave out what does not belong to the client, or raise --max-unpacked"};
constexpr Defect OddForm{106, "the archive has a form that pack does not write",
    "not every reader makes the same of it", kRepack};

constexpr Defect NameNotUtf8{201, "the name is not UTF-8",
    "macOS refuses such a name, and the installation fails there", "rename the file"};
constexpr Defect NameDotDot{202, "the name has a \"..\" element", "the launcher fails the whole installation", kRepack};
constexpr Defect NameAbsolute{203, "the name is absolute",
    "the launcher puts it below the folder, where nothing looks for it", kRepack};
constexpr Defect NameOddElement{204, "the name has an empty or a \".\" element",
    "one file can be written under two names, and comparisons by name go wrong", kRepack};
constexpr Defect NameTwice{205, "the entry is there twice", "it depends on the reader which of the two is installed",
    "leave one of them out"};
constexpr Defect NameCase{206, "two names differ in letter case only",
    "a volume that ignores case keeps only one of the two files", "rename one of them"};
constexpr Defect NameForm{207, "two names differ in Unicode form only",
    "macOS takes them for one name and keeps only one of the two files", "rename one of them"};
constexpr Defect NameControl{208, "the name has a control character", "scripts, logs and people stumble over it",
    "rename the file"};
constexpr Defect NameTooLong{209, "the name is too long",
    "a name has at most 255 bytes; with the folder in front the path has at most 1023 on macOS",
    "shorten the name or the names of its folders"};
constexpr Defect NameOutsideContents{210, "the entry lies outside \"Contents\"",
    "the inside of the application folder is the top level: the launcher looks for Contents/MacOS/cloud-quay-ui",
    "pack the inside of the application folder"};
constexpr Defect NameAppleDouble{211, "an AppleDouble leftover",
    "macOS takes it for attributes of another file, Linux for a file of its own", "delete it and pack again"};
constexpr Defect NameLitter{212, "a leftover of a file manager, a version control system or an editor",
    "it tells users about the machine that it was packed on", "delete it and pack again"};
constexpr Defect NameBackslash{213, "the name has a backslash", "some unpackers take it for a folder's border",
    "rename the file"};
constexpr Defect ParentIsNoFolder{214, "the entry lies below one that is no folder",
    "one of the two can't be written, or replaces the other", "leave one of them out"};
constexpr Defect NameNotComposed{215, "the name is not in composed Unicode form (NFC)",
    "the archive library composes it on some systems: the client finds its file under another spelling",
    "rename the file to its composed form"};
constexpr Defect FolderMissing{216, "no entry of its folder stands before it",
    "the launcher makes the folder up, with rights that nobody chose", kRepack};

constexpr Defect HardLink{301, "a hard link",
    "the launcher leaves its target as it stands, which is not below the folder",
    "pack it with quay-package, which stores a file of its own"};
constexpr Defect SpecialFile{302, "a device, a FIFO or a socket",
    "a client's folder has no use for it, and users may not make it", "delete it and pack again"};
constexpr Defect SetIdBit{303, "a set-user-id, set-group-id or sticky bit",
    "the launcher drops it: what relies on it does not work", "clear the bit (chmod ug-s,-t)"};
constexpr Defect UnreadableMode{304, "the owner can't read it", "the user's own client can't use its file",
    "give the owner the right to read, and to enter a folder"};
constexpr Defect WorldWritable{305, "everyone may write to it",
    "under a lax umask any user of the machine can change the client", "clear the bit (chmod o-w)"};
constexpr Defect ProgramWithoutExecuteBit{306, "a program without the execute bit", "the client can't start it",
    "set the bit (chmod +x)"};
constexpr Defect OddMode{307, "a mode other than 0755 and 0644, or 0777 for a link",
    "a client is installed with modes that mean the same to everybody", kRepack};

constexpr Defect LinkAbsolute{401, "a symbolic link with an absolute target",
    "it leads out of the folder, to whatever the user's machine has there", "make the link relative"};
constexpr Defect LinkLeaves{402, "a symbolic link that leaves the folder",
    "it leads to whatever the user's machine has there", "let it lead to something inside the folder"};
constexpr Defect BehindLink{403, "the entry lies behind a symbolic link", "it is written where the link leads",
    "store it under its real name"};
constexpr Defect LinkDangling{404, "a symbolic link to nothing", "what opens it fails",
    "add its target or leave the link out"};
constexpr Defect LinkLoop{405, "symbolic links that lead to each other", "what opens one of them fails",
    "let one of them lead to a file or a folder"};
constexpr Defect LinkTargetOdd{406,
    "a symbolic link whose target is empty, too long, not composed UTF-8, or has control characters",
    "not every system can make it as it stands", "make the link again"};

constexpr Defect BinaryMissing{501, "Contents/MacOS/cloud-quay-ui is missing",
    "the installation succeeds, nothing starts, and each start installs again", "build the client, then pack"};
constexpr Defect BinaryNotExecutable{502, "the client's binary is not executable", "the client can't be started",
    "set the bit (chmod +x)"};
constexpr Defect BinaryNoProgram{503,
    "the client's binary is no program: no ELF, Mach-O or \"#!\" file, or one cut short", "the client can't be started",
    "build the client, then pack"};
constexpr Defect InfoMissing{504, "Contents/Resources/INFO is missing",
    "the installed client counts as build 0, and each start installs again", "pack with quay-package, which stamps it"};
constexpr Defect InfoNoBuild{505, "INFO has no build_version in its group Version",
    "the installed client counts as build 0, and each start installs again", "pack with --build"};
constexpr Defect InfoBuildNoNumber{506, "the build_version is no number from 1 to 2147483647",
    "only leading digits count, and nothing counts as 0: the comparison goes wrong", "pack with --build"};
constexpr Defect InfoNotLast{507, "INFO is not the last entry",
    "a start that is killed after it leaves half a client that counts as whole", kRepack};
constexpr Defect BinaryNotSecondToLast{508, "the client's binary is not the second to last entry",
    "a start that is killed after it leaves half a client that is started", kRepack};
constexpr Defect InfoIncomplete{509, "INFO lacks a version other than the build's",
    "the log can't tell which version it is", kRepack};
constexpr Defect PropertyListMissing{510, "Contents/Info.plist is missing in a package for macOS",
    "the system does not take the folder for an application and starts nothing", "add it to the client's folder"};
constexpr Defect PropertyListWrong{511, "Contents/Info.plist does not name cloud-quay-ui",
    "the system starts something else, or nothing", "set CFBundleExecutable to cloud-quay-ui"};
constexpr Defect InfoTooLarge{512, "INFO is larger than 64 KiB", "it is read on each start",
    "keep only versions in it"};
constexpr Defect StampHidden{513, "what stands in the folder's INFO hides the stamp from the launcher",
    "the installed client would count as another build",
    "let the INFO be plain KEY=VALUE lines below [GROUP] lines, each once"};

constexpr Defect BundleInfoMissing{601, "the bundle's Contents/Resources/INFO is missing",
    "the bundle counts as build 0, and nobody is upgraded", kRebundle};
constexpr Defect BundlePackageMissing{602, "the bundle's package is missing", "the upgrade fails at every start",
    kRebundle};
constexpr Defect BundleBuildDiffers{603, "bundle and package are not of the same build",
    "where the bundle's build is higher, each start installs again; where it is lower, nobody gets the package",
    kRebundle};
constexpr Defect BundleLauncherMissing{604, "the launcher is missing in the bundle", "there is nothing to start",
    kRebundle};
constexpr Defect BundleLauncherNotExecutable{605, "the launcher is not executable", "the bundle can't be started",
    "set the bit (chmod +x)"};
constexpr Defect BundleIcon{606, "the dialog's icon is missing or can't be decoded as a PNG image",
    "the progress dialog has no icon", "make the bundle with quay-package, or with --icon"};
constexpr Defect BundleLevels{607, "the level file is malformed", "the launcher takes it for an empty one",
    "mend it: a line is COMPONENT=LEVEL"};
constexpr Defect BundlePropertyListMissing{608, "the bundle's Info.plist is missing",
    "macOS does not take the folder for an application", kRebundle};
constexpr Defect BundlePropertyListWrong{609, "the bundle's Info.plist does not name the launcher",
    "macOS starts something else, or nothing", kRebundle};
constexpr Defect BundleDesktopEntry{610, "the desktop entry does not start the launcher, or is not valid",
    "the entry in the menu is not there, or does nothing",
    "make the bundle with quay-package, and say by --installed-at where it will lie"};
constexpr Defect BundleVersionDiffers{611, "bundle and package differ in a version other than the build's",
    "logs of one release show two versions", kRebundle};
constexpr Defect BundleBuildNoNumber{612, "the bundle's build_version is no number from 1 to 2147483647",
    "only leading digits count, and nothing counts as 0: nobody is upgraded", kRebundle};
constexpr Defect BundleLitter{613, "a leftover in the bundle", "it is shipped to every user", "delete it"};
constexpr Defect BundleMode{614,
    "a mode that keeps users from the bundle, lets others change it, or makes it run as somebody else",
    "who did not install the bundle can't start it, or can't trust it", "chmod a+rX,o-w,ug-s"};
constexpr Defect BundleKind{615, "the bundle has a link or something odd where a file or a folder must be",
    "it leads to whatever stands there, or blocks whoever opens it", kRebundle};
constexpr Defect LauncherNoProgram{616,
    "the launcher is no program, is cut short, or is for another platform than the client",
    "the bundle can't be started", "make the bundle with quay-package, from the launcher of that platform"};

constexpr Defect RehearsalFailed{701, "the launcher's own extractor fails", "so it will at every user's",
    "see the line of its log; pack again"};
constexpr Defect RehearsalMissing{702, "an entry is not on disk after the rehearsal",
    "the installed client is not complete", "see the other findings: another entry took its place"};
constexpr Defect RehearsalUnexpected{703, "something is on disk that is no entry",
    "an entry was written somewhere else", "see the other findings: a link leads there"};
constexpr Defect RehearsalDiffers{704, "what is on disk differs from the entry",
    "the installed client is not what was packed",
    "see the other findings; rehearse on a volume that keeps modes and links"};
constexpr Defect RehearsalUpgradesAgain{705, "after the rehearsal the next start would install again",
    "every start takes as long as an installation", "see the other findings about INFO and the binary"};

constexpr Defect HomeMissing{801, "there is no such home folder", "the private copy can't be written",
    "make it, or name another"};
constexpr Defect NotWritable{802, "no right to write", "the installation fails",
    "give the user the right to write there"};
constexpr Defect NoSpace{803, "too little space", "the installation fails and is rolled back",
    "make room on the volume"};
constexpr Defect PathObstructed{804, "something else stands where a file or a folder must be",
    "the launcher fails, or waits for it without end", "move it out of the way"};
constexpr Defect ThroughLink{805, "a folder is reached through a symbolic link",
    "the exact spelling is asked for: the older product's data is not found and not taken over",
    "let the home be named by its real path"};
constexpr Defect Leftovers{806, "an earlier installation left something behind",
    "it takes space, and the next upgrade uses another backup name", "delete it once the client runs"};
constexpr Defect NoBackupName{807, "all backup names are taken",
    "the old copy can't be moved aside: every upgrade fails", "delete the folders with these names"};
constexpr Defect OlderDataLost{808, "both products have data",
    "the older product's data can't be moved, and its folder is removed all the same", "save one of the two first"};
constexpr Defect PidFileOdd{809, "the pid file names no running client",
    "nothing is stopped, or a process that is none of ours", "end the client by hand and delete the file"};

constexpr Defect CopyMissing{901, "the package has it, the private copy does not", "the client is not complete",
    "install again: remove the private copy and start the bundle"};
constexpr Defect CopyDiffers{902, "it is not what the package holds", "somebody or something has changed the client",
    "install again: remove the private copy and start the bundle"};
constexpr Defect CopyAdded{903, "the private copy has it, the package does not",
    "it came from elsewhere, or was left by the client", "see what made it; the next upgrade removes it"};
constexpr Defect CopyMode{904, "its mode is not the package's",
    "the client may not be able to use it, or others may change it",
    "give it back the mode that `quay-package list` shows"};
// clang-format on

// In ascending order of their numbers.
constexpr auto kAll = Pointers(
    NoZip, Damaged, NoEntries, Encrypted, TooLarge, OddForm, NameNotUtf8, NameDotDot, NameAbsolute, NameOddElement,
    NameTwice, NameCase, NameForm, NameControl, NameTooLong, NameOutsideContents, NameAppleDouble, NameLitter,
    NameBackslash, ParentIsNoFolder, NameNotComposed, FolderMissing, HardLink, SpecialFile, SetIdBit, UnreadableMode,
    WorldWritable, ProgramWithoutExecuteBit, OddMode, LinkAbsolute, LinkLeaves, BehindLink, LinkDangling, LinkLoop,
    LinkTargetOdd, BinaryMissing, BinaryNotExecutable, BinaryNoProgram, InfoMissing, InfoNoBuild, InfoBuildNoNumber,
    InfoNotLast, BinaryNotSecondToLast, InfoIncomplete, PropertyListMissing, PropertyListWrong, InfoTooLarge,
    StampHidden, BundleInfoMissing, BundlePackageMissing, BundleBuildDiffers, BundleLauncherMissing,
    BundleLauncherNotExecutable, BundleIcon, BundleLevels, BundlePropertyListMissing, BundlePropertyListWrong,
    BundleDesktopEntry, BundleVersionDiffers, BundleBuildNoNumber, BundleLitter, BundleMode, BundleKind,
    LauncherNoProgram, RehearsalFailed, RehearsalMissing, RehearsalUnexpected, RehearsalDiffers, RehearsalUpgradesAgain,
    HomeMissing, NotWritable, NoSpace, PathObstructed, ThroughLink, Leftovers, NoBackupName, OlderDataLost, PidFileOdd,
    CopyMissing, CopyDiffers, CopyAdded, CopyMode);

}  // namespace defects
