// Every defect that can be sown is found, under its own code and no other than those that follow from it.

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>

#include "quay-test.h"
#include "volume.h"

namespace fs = std::filesystem;

namespace {

constexpr char kBinary[] = "Contents/MacOS/cloud-quay-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

// What a seed works on: first the entries, then the archive's bytes, then the bundle.
struct Draft {
    std::vector<PackageEntry> entries;
    std::string format = "pax";
    std::string filter;
    std::vector<std::string> arguments;
    std::function<void(std::string& bytes)> damage;
    std::function<void(const std::string& bundle)> spoil;  // the bundle is checked then, not the package

    PackageEntry& Find(const std::string& path) {
        return *std::find_if(entries.begin(), entries.end(), [&](const PackageEntry& e) { return e.path == path; });
    }
    void Remove(const std::string& path) {
        entries.erase(
            std::remove_if(entries.begin(), entries.end(), [&](const PackageEntry& e) { return e.path == path; }),
            entries.end());
    }
    // In front of the binary, where anything may be.
    void Add(const PackageEntry& entry) { entries.insert(entries.end() - 2, entry); }
    void MoveToFront(const std::string& path) {
        const PackageEntry entry = Find(path);
        Remove(path);
        entries.insert(entries.begin(), entry);
    }
};

struct Seed {
    const char* name;
    const char* code;                    // the defect's own
    std::vector<std::string> alsoFound;  // what follows from it
    std::function<void(Draft& draft)> sow;
};

// So that a failure, and the list of tests, names the code.
void PrintTo(const Seed& seed, std::ostream* out) {
    *out << seed.code;
}

void ReplaceAll(std::string& bytes, const std::string& from, const std::string& to) {
    ASSERT_EQ(from.size(), to.size());
    ASSERT_NE(bytes.find(from), std::string::npos);
    for (std::size_t at = bytes.find(from); at != std::string::npos; at = bytes.find(from, at)) {
        bytes.replace(at, from.size(), to);
    }
}

// Puts the sum right of the tar header that holds the position.
void SumTarHeader(std::string& bytes, std::size_t at) {
    const std::size_t header = at / 512 * 512;
    bytes.replace(header + 148, 8, "        ");
    unsigned sum = 0;
    for (std::size_t byte = header; byte < header + 512; ++byte) {
        sum += static_cast<unsigned char>(bytes[byte]);
    }
    char text[8];
    std::snprintf(text, sizeof(text), "%06o", sum);
    bytes.replace(header + 148, 7, std::string(text, 7));
}

// Changes a tar header's bytes at an offset from its beginning; the header is that of the entry with this name.
void EditTarHeader(std::string& bytes, const std::string& name, std::size_t offset, const std::string& text) {
    const std::size_t header = bytes.find(name + std::string(1, '\0'));
    ASSERT_NE(header, std::string::npos);
    ASSERT_EQ(header % 512, 0U);
    bytes.replace(header + offset, text.size(), text);
    SumTarHeader(bytes, header);
}

// Sets the bit of an encrypted entry in the two headers of a zip file's entry.
void MarkEncrypted(std::string& bytes, const std::string& name) {
    const std::size_t local = bytes.find(name);
    const std::size_t central = bytes.rfind(name);
    ASSERT_NE(local, central);
    bytes[local - 30 + 6] = static_cast<char>(bytes[local - 30 + 6] | 1);
    bytes[central - 46 + 8] = static_cast<char>(bytes[central - 46 + 8] | 1);
}

void WriteText(const std::string& path, const std::string& text) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    ASSERT_EQ(std::fwrite(text.data(), 1, text.size(), file), text.size());
    std::fclose(file);
}

std::string Link(const std::string& name) {
    return "Contents/Resources/" + name;
}

std::string Info(const std::string& build, const std::string& major = "1") {
    return "[Version]\nmajor_version=" + major + "\nminor_version=2\nbuild_version=" + build +
           "\nicon_overlay_version=3\n";
}

const std::vector<Seed> kSeeds = {
    // The archive.
    {"NoArchive", "KQ101", {}, [](Draft& d) { d.damage = [](std::string& b) { b = "no archive at all\n"; }; }},
    {"CutShort", "KQ102", {"KQ701"}, [](Draft& d) { d.damage = [](std::string& b) { b.resize(b.size() / 2); }; }},
    {"DamagedData",
     "KQ102",
     {},
     [](Draft& d) {
         d.format = "zip";
         d.arguments = {"--no-rehearsal"};
         d.damage = [](std::string& b) { b[b.find("Contents/Resources/large") + 52] ^= 0x55; };
     }},
    {"DamagedDataInTheRehearsal",
     "KQ701",
     {},
     [](Draft& d) {
         d.format = "zip";
         d.damage = [](std::string& b) { b[b.find("Contents/Resources/large") + 52] ^= 0x55; };
     }},
    {"NoEntries", "KQ103", {}, [](Draft& d) { d.entries.clear(); }},
    {"Encrypted",
     "KQ104",
     {"KQ701"},
     [](Draft& d) {
         d.format = "zip";
         d.damage = [](std::string& b) { MarkEncrypted(b, "Contents/Resources/only-in-7"); };
     }},
    {"TooLarge",
     "KQ105",
     {},
     [](Draft& d) {
         d.arguments = {"--max-unpacked", "300000"};
     }},
    // That format has its empty entries last, whatever is asked of it.
    {"UnusualFormat", "KQ106", {"KQ507", "KQ508"}, [](Draft& d) { d.format = "7zip"; }},

    // Names.
    {"NotUtf8",
     "KQ201",
     {},
     [](Draft& d) {
         d.format = "zip";
         d.Add({"Contents/Resources/qqqq", ""});
         d.damage = [](std::string& b) { ReplaceAll(b, "qqqq", "q\xff\xfeq"); };
     }},
    {"DotDot",
     "KQ202",
     {},
     [](Draft& d) {
         d.Add({"Contents/../Contents/x", ""});
     }},
    {"Absolute",
     "KQ203",
     {},
     [](Draft& d) {
         d.Add({"/Contents/Resources/x", ""});
     }},
    {"OddElement",
     "KQ204",
     {},
     [](Draft& d) {
         d.Add({"./Contents/Resources/x", ""});
     }},
    {"Twice",
     "KQ205",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/only-in-7", "other"});
     }},
    {"TwiceUnderAnotherSpelling",
     "KQ205",
     {"KQ204"},
     [](Draft& d) {
         d.Add({"Contents//Resources/only-in-7", "other"});
     }},
    {"Case",
     "KQ206",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/Only-In-7", ""});
     }},
    {"CaseOutsideAscii",
     "KQ206",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/GRÖSSE und 日本語.txt", ""});
     }},
    {"CaseOfAFolder",
     "KQ206",
     {},
     [](Draft& d) {
         d.Add({"Contents/resources/x", ""});
     }},
    {"Form",
     "KQ207",
     {"KQ215"},
     [](Draft& d) {
         d.format = "gnutar";  // the names in other formats are composed when they are read
         d.Add({"Contents/Resources/Gro\xcc\x88ße und 日本語.txt", ""});
     }},
    {"NotComposed",
     "KQ215",
     {},
     [](Draft& d) {
         d.format = "gnutar";
         d.Add({"Contents/Resources/e\xcc\x81", ""});
     }},
    {"Control",
     "KQ208",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/a\nb", ""});
     }},
    {"LongName",
     "KQ209",
     {"KQ701"},
     [](Draft& d) {
         d.Add({"Contents/" + std::string(256, 'n'), ""});
     }},
    {"OutsideContents",
     "KQ210",
     {},
     [](Draft& d) {
         d.Add({"Extra/x", ""});
     }},
    {"FolderInFront",
     "KQ210",
     {"KQ501", "KQ504", "KQ705"},
     [](Draft& d) {
         for (PackageEntry& entry : d.entries) {
             entry.path = "KelvaneQuay.app/" + entry.path;
         }
     }},
    {"AppleDouble",
     "KQ211",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/._large", ""});
     }},
    {"AppleDoubleFolder",
     "KQ211",
     {},
     [](Draft& d) {
         d.Add({"__MACOSX/large", ""});
     }},
    {"Litter",
     "KQ212",
     {},
     [](Draft& d) {
         d.Add({"Contents/.DS_Store", ""});
     }},
    {"Backslash",
     "KQ213",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources\\x", ""});
     }},
    {"BelowAFile",
     "KQ214",
     {"KQ701"},
     [](Draft& d) {
         d.Add({"Contents/Resources/f", "file"});
         d.Add({"Contents/Resources/f/x", "below"});
     }},

    // Types and modes.
    {"HardLink",
     "KQ301",
     {},
     [](Draft& d) {
         d.format = "ustar";
         d.Add({"Contents/Resources/twin", ""});
         d.damage = [](std::string& b) {
             EditTarHeader(b, "Contents/Resources/twin", 156, "1Contents/Resources/large");
         };
     }},
    {"Fifo",
     "KQ302",
     {},
     [](Draft& d) {
         d.Add({"Contents/Resources/fifo", "", S_IFIFO, 0644});
     }},
    {"SetId", "KQ303", {}, [](Draft& d) { d.Find(kBinary).mode = 04755; }},
    {"Unreadable", "KQ304", {}, [](Draft& d) { d.Find("Contents/Resources/large").mode = 0044; }},
    {"FolderNotToBeEntered", "KQ304", {}, [](Draft& d) { d.Find("Contents/Resources/empty/").mode = 0600; }},
    {"WorldWritable", "KQ305", {}, [](Draft& d) { d.Find("Contents/Resources/large").mode = 0666; }},
    {"NoExecuteBit",
     "KQ306",
     {},
     [](Draft& d) {
         d.Add({"Contents/MacOS/worker", "#!/bin/sh\n"});
     }},

    // Links.
    {"AbsoluteLink",
     "KQ401",
     {},
     [](Draft& d) {
         d.Add({Link("l"), "/etc/passwd", S_IFLNK, 0777});
     }},
    {"LeavingLink",
     "KQ402",
     {},
     [](Draft& d) {
         d.Add({Link("l"), "../../../x", S_IFLNK, 0777});
     }},
    {"LinkThatLeavesByAnother",
     "KQ402",
     {},
     [](Draft& d) {
         d.Add({Link("top"), "../..", S_IFLNK, 0777});
         d.Add({Link("l"), "top/../x", S_IFLNK, 0777});
     }},
    {"BehindALink",
     "KQ403",
     {"KQ703"},
     [](Draft& d) {
         d.Add({Link("l"), "empty", S_IFLNK, 0777});
         d.Add({Link("l/x"), ""});
     }},
    {"DanglingLink",
     "KQ404",
     {},
     [](Draft& d) {
         d.Add({Link("l"), "nowhere", S_IFLNK, 0777});
     }},
    {"LinkBelowAFile",
     "KQ404",
     {},
     [](Draft& d) {
         d.Add({Link("l"), "large/x", S_IFLNK, 0777});
     }},
    {"LoopOfLinks",
     "KQ405",
     {},
     [](Draft& d) {
         d.Add({Link("a"), "b", S_IFLNK, 0777});
         d.Add({Link("b"), "./a", S_IFLNK, 0777});
     }},
    {"OddTarget",
     "KQ406",
     {},
     [](Draft& d) {
         d.format = "ustar";
         d.Add({Link("l"), "target", S_IFLNK, 0777});
         d.damage = [](std::string& b) { EditTarHeader(b, "Contents/Resources/l", 157, "tar\xff\xfet"); };
     }},

    // What a package must hold.
    {"NoBinary", "KQ501", {"KQ705"}, [](Draft& d) { d.Remove(kBinary); }},
    {"BinaryNotExecutable", "KQ502", {}, [](Draft& d) { d.Find(kBinary).mode = 0644; }},
    {"BinaryEmpty", "KQ503", {}, [](Draft& d) { d.Find(kBinary).content.clear(); }},
    {"BinaryIsALink",
     "KQ503",
     {},
     [](Draft& d) {
         d.Find(kBinary) = {kBinary, "../Resources/large", S_IFLNK, 0777};
     }},
    {"NoInfo", "KQ504", {}, [](Draft& d) { d.Remove(kInfo); }},
    {"NoBuild", "KQ505", {}, [](Draft& d) { ReplaceAll(d.Find(kInfo).content, "build_version", "build_number_"); }},
    {"KeysOutsideTheGroup",
     "KQ505",
     {"KQ509"},
     [](Draft& d) { ReplaceAll(d.Find(kInfo).content, "[Version]", "[Product]"); }},
    {"BuildNoNumber", "KQ506", {}, [](Draft& d) { d.Find(kInfo).content = Info("7b"); }},
    {"BuildTooLarge", "KQ506", {}, [](Draft& d) { d.Find(kInfo).content = Info("2147483648"); }},
    {"InfoNotLast", "KQ507", {}, [](Draft& d) { d.MoveToFront(kInfo); }},
    {"BinaryFirst", "KQ508", {}, [](Draft& d) { d.MoveToFront(kBinary); }},
    {"InfoIncomplete", "KQ509", {}, [](Draft& d) { d.Find(kInfo).content = "[Version]\nbuild_version=7\n"; }},
    {"NoPropertyList", "KQ510", {}, [](Draft& d) { d.Find(kBinary).content = "\xcf\xfa\xed\xfe and more"; }},
    {"WrongPropertyList",
     "KQ511",
     {},
     [](Draft& d) {
         d.Add({"Contents/Info.plist",
                "<plist><dict><key>CFBundleExecutable</key><string>another</string></dict></plist>"});
     }},

    // The bundle.
    {"BundleWithoutInfo",
     "KQ601",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { fs::remove(b + "/Contents/Resources/INFO"); }; }},
    {"BundleWithoutPackage",
     "KQ602",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { fs::remove_all(b + "/Contents/Resources/package"); }; }},
    {"OtherBuild",
     "KQ603",
     {"KQ705"},
     [](Draft& d) { d.spoil = [](const std::string& b) { WriteText(b + "/Contents/Resources/INFO", Info("8")); }; }},
    {"NoLauncher",
     "KQ604",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { fs::remove(b + "/Contents/MacOS/kelvane-quay-launcher"); }; }},
    {"LauncherNotExecutable",
     "KQ605",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) {
             fs::permissions(b + "/Contents/MacOS/kelvane-quay-launcher", fs::perms(0644));
         };
     }},
    {"NoIcon",
     "KQ606",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) {
             WriteText(b + "/Contents/Resources/images/ico_72_tessaly.png", "GIF89a");
         };
     }},
    {"MalformedLevels",
     "KQ607",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) {
             fs::create_directories(b + "/Contents/Resources/log");
             WriteText(b + "/Contents/Resources/log/launcher.debug", "service_debug 7\n");
         };
     }},
    {"BundleWithoutPropertyList",
     "KQ608",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { fs::remove(b + "/Contents/Info.plist"); }; }},
    {"BundlePropertyListCutShort",
     "KQ609",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { fs::resize_file(b + "/Contents/Info.plist", 700); }; }},
    {"DesktopEntryOfAnother",
     "KQ610",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) {
             WriteText(b + "/Contents/Resources/kelvane-quay.desktop", "[Desktop Entry]\nExec=another\n");
         };
     }},
    {"OtherMajorVersion",
     "KQ611",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) { WriteText(b + "/Contents/Resources/INFO", Info("7", "2")); };
     }},
    {"BundleBuildNoNumber",
     "KQ612",
     {"KQ603"},
     [](Draft& d) { d.spoil = [](const std::string& b) { WriteText(b + "/Contents/Resources/INFO", Info("x7")); }; }},
    {"BundleLitter",
     "KQ613",
     {},
     [](Draft& d) { d.spoil = [](const std::string& b) { WriteText(b + "/Contents/._Resources", ""); }; }},
    {"BundleForItsOwnerOnly",
     "KQ614",
     {},
     [](Draft& d) {
         d.spoil = [](const std::string& b) { fs::permissions(b + "/Contents/Resources", fs::perms(0700)); };
     }},
};

}  // namespace

class CheckTest : public QuayTest {
protected:
    // The package of a draft.
    std::string Write(const Draft& draft) const {
        const std::string package = At("draft.kpk");
        WritePackage(package, draft.entries, draft.format, draft.filter);
        if (draft.damage) {
            std::string bytes = Read(package);
            draft.damage(bytes);
            WriteText(package, bytes);
        }
        return package;
    }

    Draft GoodDraft() const {
        Draft draft;
        draft.entries = ClientEntries(7);
        return draft;
    }
};

class SeededDefect : public CheckTest, public ::testing::WithParamInterface<Seed> {};

TEST_P(SeededDefect, IsFound) {
    const Seed& seed = GetParam();
    Draft draft = GoodDraft();
    seed.sow(draft);
    std::string operand = Write(draft);
    if (draft.spoil) {
        operand = MakeBundle(operand);
        draft.spoil(operand);
    }
    std::vector<std::string> arguments = {"check", operand};
    arguments.insert(arguments.end(), draft.arguments.begin(), draft.arguments.end());
    std::set<std::string> expected(seed.alsoFound.begin(), seed.alsoFound.end());
    expected.insert(seed.code);
    const QJsonObject report = RunJson(arguments, 1);
    EXPECT_EQ(Codes(report), expected) << QJsonDocument(report).toJson().toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, SeededDefect, ::testing::ValuesIn(kSeeds),
                         [](const auto& seed) { return seed.param.name; });

TEST_F(CheckTest, NothingIsFoundInGoodOnes) {
    const std::string package = MakePackage(MakeClient());
    const std::string bundle = MakeBundle(package);
    const std::set<std::string> before = Names(fs::temp_directory_path().string());
    EXPECT_EQ(Codes(RunJson({"check", package}, 0)), std::set<std::string>());
    EXPECT_EQ(Codes(RunJson({"check", bundle}, 0)), std::set<std::string>());
    // As another packer may have made it.
    for (const char* filter : {"", "gzip", "xz"}) {
        Draft draft = GoodDraft();
        draft.filter = filter;
        EXPECT_EQ(Codes(RunJson({"check", Write(draft)}, 0)), std::set<std::string>()) << filter;
    }
    const Outcome text = Run({"check", bundle});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_NE(text.output.find(": good, build 7, 10 entries"), std::string::npos) << text.output;
    EXPECT_EQ(text.errors, "");
}

// Whatever code the tool knows of packages and bundles, a seed shows.
TEST_F(CheckTest, EveryCodeHasASeed) {
    std::set<std::string> sown;
    for (const Seed& seed : kSeeds) {
        sown.insert(seed.code);
        sown.insert(seed.alsoFound.begin(), seed.alsoFound.end());
    }
    std::set<std::string> missing;
    for (const QJsonValue& code : RunJson({"check", "--codes"}, 0).value(QStringLiteral("codes")).toArray()) {
        const std::string id = code.toObject().value(QStringLiteral("code")).toString().toStdString();
        if (id < "KQ800" && sown.count(id) == 0) {
            missing.insert(id);
        }
    }
    // What the extractor wrote and what is not there, or not so: only a volume can do that.
    EXPECT_EQ(missing, (std::set<std::string>{"KQ702", "KQ704"}));
}

TEST_F(CheckTest, TheDocumentHasEveryCode) {
    const std::string document = Read(KQ_PACKAGING_DOC);
    std::istringstream codes(Run({"check", "--codes"}).output);
    int count = 0;
    for (std::string line; std::getline(codes, line); ++count) {
        EXPECT_NE(document.find(line + "\n"), std::string::npos) << line;
    }
    EXPECT_GT(count, 60);
}

// Nothing is written outside the rehearsal's folder, however a package tries.
TEST_F(CheckTest, DoesNotRehearseWhatWouldLeaveTheFolder) {
    fs::create_directories(At("victim"));
    Draft draft = GoodDraft();
    draft.Add({Link("out"), At("victim"), S_IFLNK, 0777});
    draft.Add({Link("out/x"), "written"});
    const QJsonObject report = RunJson({"check", Write(draft)}, 1);
    EXPECT_EQ(report.value(QStringLiteral("rehearsal")).toString(), QStringLiteral("skipped"));
    EXPECT_EQ(Names(At("victim")), std::set<std::string>());
}

// A volume without modes and links shows in the rehearsal that what is installed there is not what was packed.
TEST_F(CheckTest, TheRehearsalSeesWhatTheVolumeDoesNotKeep) {
    Volume volume(Volume::ExFat, At("volume"), 16 << 20);
    KQ_NEED(volume);
    Draft draft = GoodDraft();
    draft.Remove("Contents/Resources/current");
    const std::string package = Write(draft);
    environment_["TMPDIR"] = At("volume");
    EXPECT_EQ(Codes(RunJson({"check", package}, 1)), std::set<std::string>{"KQ704"});
}

// Findings are counted without end but not kept: the report stays short.
TEST_F(CheckTest, CountsWhatItDoesNotList) {
    Draft draft = GoodDraft();
    for (int number = 0; number < 400; ++number) {
        draft.Add({Link("l" + std::to_string(number)), "nowhere", S_IFLNK, 0777});
    }
    const QJsonObject report = RunJson({"check", Write(draft)}, 1);
    EXPECT_EQ(report.value(QStringLiteral("count")).toInt(), 400);
    EXPECT_EQ(report.value(QStringLiteral("findings")).toArray().size(), 25);
}

// On a terminal the long steps show how far they are, and nothing of it stays.
TEST_F(CheckTest, ShowsProgressOnATerminalOnly) {
    const std::string package = MakePackage(MakeClient());
    const std::string terminal = "/usr/bin/script";
    if (!fs::exists(terminal)) {
        GTEST_SKIP() << "no terminal: there is no " << terminal;
    }
    const std::string command = std::string(KQ_PACKAGE_TOOL) + " check " + package;
    const Outcome outcome = RunProcess({terminal, "-qec", command, "/dev/null"}, environment_);
    EXPECT_EQ(outcome.exitCode, 0);
    const std::size_t full = outcome.output.find("] 100%\r\033[K");
    EXPECT_NE(full, std::string::npos) << outcome.output;
    EXPECT_GT(outcome.output.find(": good"), full);
    EXPECT_EQ(Run({"check", package}).errors, "");
}

TEST_F(CheckTest, ListShowsWhatCheckSees) {
    Draft draft = GoodDraft();
    const QJsonObject list = RunJson({"list", Write(draft)}, 0);
    const QJsonArray entries = list.value(QStringLiteral("entries")).toArray();
    ASSERT_EQ(static_cast<std::size_t>(entries.size()), draft.entries.size());
    const QJsonObject link = entries.at(3).toObject();
    EXPECT_EQ(link.value(QStringLiteral("type")).toString(), QStringLiteral("link"));
    EXPECT_EQ(link.value(QStringLiteral("target")).toString(), QStringLiteral("only-in-7"));
    draft.damage = [](std::string& bytes) { bytes.resize(bytes.size() / 2); };
    EXPECT_NE(RunJson({"list", Write(draft)}, 1).value(QStringLiteral("error")).toString(), QString());
}
