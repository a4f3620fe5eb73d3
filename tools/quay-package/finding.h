// What can be wrong with a package, a bundle or a home, each under a code that stays the same.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The hundreds say what a code is about: 1 the archive, 2 names, 3 types and modes, 4 symbolic links, 5 what a package
// must hold, 6 the bundle, 7 the rehearsal, 8 the next start in a home. A number is never given a second meaning.
enum class Code : int {
    NotAnArchive = 101,
    Damaged = 102,
    NoEntries = 103,
    Encrypted = 104,
    TooLarge = 105,
    UnusualFormat = 106,

    NameNotUtf8 = 201,
    NameDotDot = 202,
    NameAbsolute = 203,
    NameOddElement = 204,
    NameTwice = 205,
    NameCase = 206,
    NameForm = 207,
    NameControl = 208,
    NameTooLong = 209,
    NameOutsideContents = 210,
    NameAppleDouble = 211,
    NameLitter = 212,
    NameBackslash = 213,
    ParentIsNoFolder = 214,
    NameNotComposed = 215,

    HardLink = 301,
    SpecialFile = 302,
    SetIdBit = 303,
    UnreadableMode = 304,
    WorldWritable = 305,
    ProgramWithoutExecuteBit = 306,

    LinkAbsolute = 401,
    LinkLeaves = 402,
    BehindLink = 403,
    LinkDangling = 404,
    LinkLoop = 405,
    LinkTargetOdd = 406,

    BinaryMissing = 501,
    BinaryNotExecutable = 502,
    BinaryNoProgram = 503,
    InfoMissing = 504,
    InfoNoBuild = 505,
    InfoBuildNoNumber = 506,
    InfoNotLast = 507,
    BinaryNotSecondToLast = 508,
    InfoIncomplete = 509,
    PropertyListMissing = 510,
    PropertyListWrong = 511,

    BundleInfoMissing = 601,
    BundlePackageMissing = 602,
    BundleBuildDiffers = 603,
    BundleLauncherMissing = 604,
    BundleLauncherNotExecutable = 605,
    BundleIcon = 606,
    BundleLevels = 607,
    BundlePropertyListMissing = 608,
    BundlePropertyListWrong = 609,
    BundleDesktopEntry = 610,
    BundleVersionDiffers = 611,
    BundleBuildNoNumber = 612,
    BundleLitter = 613,
    BundleMode = 614,

    RehearsalFailed = 701,
    RehearsalMissing = 702,
    RehearsalUnexpected = 703,
    RehearsalDiffers = 704,
    RehearsalUpgradesAgain = 705,

    HomeMissing = 801,
    NotWritable = 802,
    NoSpace = 803,
    PathObstructed = 804,
    ThroughLink = 805,
    Leftovers = 806,
    NoBackupName = 807,
    OlderDataLost = 808,
    PidFileOdd = 809,
    PackageUnusable = 810,
    UpgradesEachStart = 811,
};

// What the table tells of a code. All texts are static.
struct CodeText {
    Code code;
    const char* what;  // the defect in a few words
    const char* why;   // why it matters
    const char* mend;  // how to mend it
};

// Every code, in ascending order.
const std::vector<CodeText>& AllCodes();

const CodeText& TextOf(Code code);

// "KQ" and the number.
std::string IdOf(Code code);

// One defect, found in one place.
struct Finding {
    Code code;
    std::string entry;   // an entry of the package or a path; may be empty
    std::string detail;  // what was seen there; may be empty
};

// Findings, with no more than a fixed number kept of each code, so that a package with one defect in each of its
// hundred thousand entries costs no more memory than a good one. One thread.
class Findings {
public:
    static constexpr std::size_t kKeptOfEachCode = 25;

    void Add(Code code, std::string entry, std::string detail = {});

    bool IsEmpty() const { return total_ == 0; }
    // All that were added, those that were not kept included.
    std::size_t Total() const { return total_; }
    std::size_t CountOf(Code code) const;
    bool Has(Code code) const { return CountOf(code) != 0; }

    // Those that were kept, by code and then in the order in which they were added.
    std::vector<Finding> Sorted() const;

private:
    std::vector<Finding> kept_;
    std::vector<std::pair<Code, std::size_t>> counts_;
    std::size_t total_ = 0;
};
