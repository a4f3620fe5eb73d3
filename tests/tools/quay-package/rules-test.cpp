// Every defect that can be sown is found, under its own code and no other than those that follow from it.
#include "tools/quay-package/rules.h"

#include <algorithm>
#include <functional>

#include "quay-test.h"
#include "tools/quay-package/content.h"

namespace {

constexpr char kBinary[] = "Contents/MacOS/cloud-quay-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

using Entries = std::vector<Entry>;

Entry& Find(Entries& entries, const std::string& path) {
    return *std::find_if(entries.begin(), entries.end(), [&path](const Entry& entry) { return entry.path == path; });
}

Entry Make(const std::string& path, Kind kind = Kind::File, const std::string& text = {}, unsigned mode = 0644) {
    Entry entry;
    entry.path = path;
    entry.kind = kind;
    entry.mode = kind == Kind::Folder ? 0755 : kind == Kind::Link ? 0777 : mode;
    (kind == Kind::Link ? entry.target : entry.content) = text;
    entry.size = static_cast<std::int64_t>(entry.content.size());
    return entry;
}

using Sow = std::function<void(Entries&)>;

// A further entry in front of the binary, where anything may be.
Sow Add(const Entry& entry) {
    return [entry](Entries& entries) { entries.insert(entries.end() - 2, entry); };
}
Sow Link(const std::string& target) {
    return Add(Make("Contents/Resources/l", Kind::Link, target));
}
Sow Mode(const std::string& path, unsigned mode) {
    return [=](Entries& entries) { Find(entries, path).mode = mode; };
}
Sow Replace(const std::string& path, const Entry& entry) {
    return [=](Entries& entries) { Find(entries, path) = entry; };
}
Sow Remove(const std::string& path) {
    return [=](Entries& entries) { entries.erase(entries.begin() + (&Find(entries, path) - entries.data())); };
}
// Moves an entry to a place counted from the front.
Sow Move(const std::string& path, std::ptrdiff_t to) {
    return [=](Entries& entries) {
        const Entry entry = Find(entries, path);
        Remove(path)(entries);
        entries.insert(entries.begin() + to, entry);
    };
}
Sow Info(const std::string& content) {
    return [=](Entries& entries) { Find(entries, kInfo).content = content; };
}
Sow Both(const Sow& one, const Sow& other) {
    return [=](Entries& entries) {
        one(entries);
        other(entries);
    };
}

struct Seed {
    Codes codes;
    Sow sow;
};

const Seed kSeeds[] = {
    {{}, [](Entries&) {}},
    {{"KQ103"}, [](Entries& entries) { entries.clear(); }},
    {{"KQ105"}, [](Entries& entries) { entries.front().size = kLargestPackage; }},

    // Names.
    {{"KQ201"}, Add(Make("Contents/Resources/q\xff\xfeq"))},
    {{"KQ201"}, Add(Make("Contents/Resources/\xc0\xaf"))},
    {{"KQ202"}, Both(Add(Make("Contents/..", Kind::Folder)), Add(Make("Contents/../x")))},
    {{"KQ203", "KQ216"}, Add(Make("/Contents/Resources/x"))},
    {{"KQ204", "KQ216"}, Add(Make("./Contents/Resources/x"))},
    {{"KQ204", "KQ216"}, Add(Make("Contents//Resources/only-in-7"))},
    {{"KQ204", "KQ210"}, Add(Make(""))},
    {{"KQ205"}, Add(Make("Contents/Resources/only-in-7"))},
    {{"KQ205"}, Add(Make("Contents/Resources/current", Kind::Folder))},
    {{"KQ206"}, Add(Make("Contents/Resources/Only-In-7"))},
    {{"KQ206"}, Add(Make("Contents/Resources/GRÖSSE und 日本語.txt"))},
    {{"KQ206"}, Both(Add(Make("Contents/resources", Kind::Folder)), Add(Make("Contents/resources/x")))},
    {{"KQ206"}, Add(Make("Contents/Resources/info"))},
    {{"KQ207", "KQ215"}, Add(Make("Contents/Resources/Gro\xcc\x88ße und 日本語.txt"))},
    {{"KQ215"}, Add(Make("Contents/Resources/e\xcc\x81"))},
    {{"KQ208"}, Add(Make("Contents/Resources/a\nb"))},
    {{"KQ209"}, Add(Make("Contents/" + std::string(256, 'n')))},
    {{"KQ210"}, Add(Make("Extra"))},
    {{"KQ210"}, Add(Make("ContentsToo"))},
    {{"KQ211"}, Add(Make("Contents/Resources/._large"))},
    {{"KQ211"}, Add(Make("__MACOSX"))},
    {{"KQ212"}, Add(Make("Contents/.DS_Store"))},
    {{"KQ212"}, Add(Make("Contents/Resources/large~"))},
    {{}, Add(Make("Contents/Resources/~"))},
    {{"KQ213"}, Add(Make("Contents/Resources\\x"))},
    {{"KQ214"}, Add(Make("Contents/Resources/large/x"))},
    {{"KQ216"}, Remove("Contents/MacOS")},
    {{"KQ216"}, Move("Contents/Resources", 3)},
    {{"KQ216", "KQ210"},
     [](Entries& entries) {
         entries.insert(entries.begin(), Make("KelvaneQuay.app", Kind::Folder));
         entries.insert(entries.begin(), Make("Elsewhere/x"));
     }},

    // Types and modes.
    {{"KQ302"}, Add(Make("Contents/fifo", Kind::Other))},
    {{"KQ303"}, Mode(kBinary, 04755)},
    {{"KQ303"}, Mode("Contents/Resources/empty", 01755)},
    {{"KQ304"}, Mode("Contents/Resources/large", 0044)},
    {{"KQ304"}, Mode("Contents/Resources/empty", 0644)},
    {{"KQ305"}, Mode("Contents/Resources/large", 0666)},
    {{"KQ307"}, Mode("Contents/Resources/large", 0600)},
    {{"KQ307"}, Mode("Contents/Resources/current", 0755)},
    {{"KQ306"},
     Add(Make("Contents/MacOS/worker", Kind::File,
              "\x7f"
              "ELF"))},
    {{},
     Add(Make("Contents/Resources/worker", Kind::File,
              "\x7f"
              "ELF"))},

    // Links.
    {{"KQ401"}, Link("/usr")},
    {{"KQ402"}, Link("../../..")},
    {{"KQ402"}, Both(Link("up/../.."), Add(Make("Contents/Resources/up", Kind::Link, "..")))},
    {{"KQ401", "KQ402"}, Both(Link("out/x"), Add(Make("Contents/Resources/out", Kind::Link, "/")))},
    {{}, Link("../..")},
    {{}, Link("empty/../../MacOS/./cloud-quay-ui")},
    {{"KQ403"}, Both(Link("empty"), Add(Make("Contents/Resources/l/x")))},
    {{"KQ205"}, Both(Add(Make("Contents/Resources/empty", Kind::Link, "..")), Add(Make("Contents/Resources/empty/x")))},
    {{"KQ404"}, Link("nowhere")},
    {{"KQ404"}, Link("large/x")},
    {{"KQ404"}, Link("ONLY-IN-7")},
    {{"KQ405"}, Link("./l")},
    {{"KQ406"}, Link("")},
    {{"KQ406"}, Link("only\xff")},
    {{"KQ406"}, Link("e\xcc\x81")},
    {{"KQ406"}, Link("a\nb")},
    {{"KQ406"}, Link(std::string(1024, '/'))},

    // What a package must hold.
    {{"KQ501"}, Remove(kBinary)},
    {{"KQ502"}, Mode(kBinary, 0644)},
    {{"KQ503"}, Replace(kBinary, Make(kBinary, Kind::Link, "../Resources/large"))},
    {{"KQ503"}, Replace(kBinary, Make(kBinary, Kind::File, "", 0755))},
    {{"KQ503"}, Replace(kBinary, Make(kBinary, Kind::File, "exit 0\n", 0755))},
    {{"KQ504"}, Remove(kInfo)},
    {{"KQ504"}, Replace(kInfo, Make(kInfo, Kind::Folder))},
    {{"KQ403"}, Replace("Contents/MacOS", Make("Contents/MacOS", Kind::Link, "Resources"))},
    {{"KQ505"}, Info("[Version]\nmajor_version=1\nminor_version=2\nicon_overlay_version=3\n")},
    {{"KQ505", "KQ509"}, Info("[Product]\nbuild_version=7\n")},
    {{"KQ506", "KQ509"}, Info("[Version]\nbuild_version=7b\n")},
    {{"KQ506", "KQ509"}, Info("[Version]\nbuild_version=2147483648\n")},
    {{"KQ509"}, Info("\xef\xbb\xbf[Version]\nbuild_version=7\n")},
    {{"KQ507"}, Move(kInfo, 3)},
    {{"KQ508", "KQ216"}, Move(kBinary, 0)},
    {{"KQ508"}, Move("Contents/Resources/large", 8)},
    {{"KQ510"},
     Replace(kBinary, Make(kBinary, Kind::File,
                           std::string("\xfe\xed\xfa\xce\0\0\0\7\0\0\0\3\0\0\0\2\0\0\0\1\0\0\0\10\0\0\0\0"
                                       "\0\0\0\2\0\0\0\10",
                                       36),
                           0755))},
    {{"KQ511"}, Add(Make("Contents/Info.plist", Kind::File, "<plist><dict/></plist>"))},
    {{"KQ511"}, Add(Make("Contents/Info.plist", Kind::Link, "Resources/large"))},
    {{"KQ512"}, Replace(kInfo, Make(kInfo, Kind::File, std::string(kLargestInfo + 1, '\n')))},
};

}  // namespace

class RulesTest : public QuayTest {};

TEST_F(RulesTest, FindEverySeed) {
    Codes sown;
    for (const Seed& seed : kSeeds) {
        SCOPED_TRACE(&seed - kSeeds);
        Entries entries = GoodEntries();
        seed.sow(entries);
        Findings findings;
        VersionInfo versions;
        Program client = Program::None;
        CheckTree(entries, kLargestPackage - 1, findings);
        if (findings.IsEmpty()) {
            ASSERT_FALSE(CheckContents(entries, findings, versions, client));
        }
        EXPECT_EQ(CodesOf(findings), seed.codes);
        sown.insert(seed.codes.begin(), seed.codes.end());
    }
    // What no archive can hold, and what concerns a folder alone.
    const Codes elsewhere = {"KQ301"};
    for (const Defect* defect : defects::kAll) {
        const bool isOurs = (defect->code > 200 && defect->code < 513) || defect->code == 103 || defect->code == 105;
        EXPECT_EQ(sown.count(IdOf(*defect)) + elsewhere.count(IdOf(*defect)), isOurs ? 1U : 0U) << IdOf(*defect);
    }
}

TEST_F(RulesTest, AcceptedFindingsAreTold) {
    Findings findings;
    EXPECT_FALSE(findings.Accept("KQ404=Contents/Resources/l"));
    EXPECT_FALSE(findings.Accept("KQ212"));
    for (const char* harmful : {"KQ402", "KQ205=Contents/x", "KQ999", "404", ""}) {
        EXPECT_TRUE(findings.Accept(harmful)) << harmful;
    }
    findings.Add(defects::LinkDangling, "Contents/Resources/l");
    findings.Add(defects::LinkDangling, "Contents/Resources/m");
    findings.Add(defects::NameLitter, "Contents/x~");
    EXPECT_EQ(CodesOf(findings), Codes{"KQ404"});
    EXPECT_EQ(findings.Total(), 1U);
    EXPECT_EQ(findings.accepted().size(), 2U);
    for (int number = 0; number < 400; ++number) {
        findings.Add(defects::LinkLoop, std::to_string(number));
    }
    EXPECT_EQ(findings.Total(), 401U);
    EXPECT_EQ(findings.found().at(405).kept.size(), 25U);
}
