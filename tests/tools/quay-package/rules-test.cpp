// Every defect that can be sown is found, under its own code and no other than those that follow from it.
#include "tools/quay-package/checks.h"

#include <algorithm>

#include "quay-test.h"
#include "tools/quay-package/content.h"

namespace {

constexpr char kBinary[] = "Contents/MacOS/cloud-quay-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";
constexpr char kLarge[] = "Contents/Resources/large";
constexpr char kEmpty[] = "Contents/Resources/empty";
constexpr char kElf[] = {0x7f, 'E', 'L', 'F', 0};

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
Sow Add(const std::string& path, Kind kind = Kind::File, const std::string& text = {}) {
    return [=](Entries& entries) { entries.insert(entries.end() - 2, Make(path, kind, text)); };
}
Sow Link(const std::string& target) {
    return Add("Contents/Resources/l", Kind::Link, target);
}
Sow Mode(const std::string& path, unsigned mode) {
    return [=](Entries& entries) { Find(entries, path).mode = mode; };
}
// Puts another object under the name of one.
Sow Replace(const std::string& path, Kind kind, const std::string& text = {}) {
    return [=](Entries& entries) { Find(entries, path) = Make(path, kind, text, 0755); };
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
    return [=](Entries& entries) { Find(entries, kInfo) = Make(kInfo, Kind::File, content); };
}

// Each is sown with all of one row's seeds together.
const std::pair<Codes, std::vector<Sow>> kSeeds[] = {
    {{}, {}},
    {{"KQ103"}, {[](Entries& entries) { entries.clear(); }}},
    {{"KQ105"}, {[](Entries& entries) { entries.front().size = kLargestPackage; }}},

    // Names.
    {{"KQ201"}, {Add("Contents/Resources/q\xff\xfeq")}},
    {{"KQ201"}, {Add("Contents/Resources/\xc0\xaf")}},
    {{"KQ202"}, {Add("Contents/..", Kind::Folder), Add("Contents/../x")}},
    {{"KQ203", "KQ216"}, {Add("/Contents/Resources/x")}},
    {{"KQ204", "KQ216"}, {Add("./Contents/Resources/x")}},
    {{"KQ204", "KQ216"}, {Add("Contents//Resources/only-in-7")}},
    {{"KQ204", "KQ210"}, {Add("")}},
    {{"KQ205"}, {Add("Contents/Resources/only-in-7")}},
    {{"KQ205"}, {Add("Contents/Resources/current", Kind::Folder)}},
    {{"KQ206"}, {Add("Contents/Resources/Only-In-7")}},
    {{"KQ206"}, {Add("Contents/Resources/GRÖSSE und 日本語.txt")}},
    {{"KQ206"}, {Add("Contents/resources", Kind::Folder), Add("Contents/resources/x")}},
    {{"KQ206"}, {Add("Contents/Resources/info")}},
    {{"KQ207", "KQ215"}, {Add("Contents/Resources/Gro\xcc\x88ße und 日本語.txt")}},
    {{"KQ215"}, {Add("Contents/Resources/e\xcc\x81")}},
    {{"KQ208"}, {Add("Contents/Resources/a\nb")}},
    {{"KQ209"}, {Add("Contents/" + std::string(256, 'n'))}},
    {{"KQ210"}, {Add("Extra")}},
    {{"KQ210"}, {Add("ContentsToo")}},
    {{"KQ211"}, {Add("Contents/Resources/._large")}},
    {{"KQ211"}, {Add("__MACOSX")}},
    {{"KQ212"}, {Add("Contents/.DS_Store")}},
    {{"KQ212"}, {Add("Contents/Resources/large~")}},
    {{}, {Add("Contents/Resources/~")}},
    {{"KQ213"}, {Add("Contents/Resources\\x")}},
    {{"KQ214"}, {Add("Contents/Resources/large/x")}},
    {{"KQ216"}, {Remove("Contents/MacOS")}},
    {{"KQ216"}, {Move("Contents/Resources", 3)}},
    {{"KQ216", "KQ210"}, {Add("App", Kind::Folder), Add("Else/x"), Move("App", 0), Move("Else/x", 0)}},

    // Types and modes.
    {{"KQ302"}, {Add("Contents/fifo", Kind::Other)}},
    {{"KQ303"}, {Mode(kBinary, 04755)}},
    {{"KQ303"}, {Mode(kEmpty, 01755)}},
    {{"KQ304"}, {Mode(kLarge, 0044)}},
    {{"KQ304"}, {Mode(kEmpty, 0644)}},
    {{"KQ305"}, {Mode(kLarge, 0666)}},
    {{"KQ307"}, {Mode(kLarge, 0600)}},
    {{"KQ307"}, {Mode("Contents/Resources/current", 0755)}},
    {{"KQ306"}, {Add("Contents/MacOS/worker", Kind::File, kElf)}},
    {{}, {Add("Contents/Resources/worker", Kind::File, kElf)}},

    // Links.
    {{"KQ401"}, {Link("/usr")}},
    {{"KQ402"}, {Link("../../..")}},
    {{"KQ402"}, {Link("up/../.."), Add("Contents/Resources/up", Kind::Link, "..")}},
    {{"KQ401", "KQ402"}, {Link("out/x"), Add("Contents/Resources/out", Kind::Link, "/")}},
    {{}, {Link("../..")}},
    {{}, {Link("empty/../../MacOS/./cloud-quay-ui")}},
    {{"KQ403"}, {Link("empty"), Add("Contents/Resources/l/x")}},
    {{"KQ205"}, {Add(kEmpty, Kind::Link, ".."), Add("Contents/Resources/empty/x")}},
    {{"KQ404"}, {Link("nowhere")}},
    {{"KQ404"}, {Link("large/x")}},
    {{"KQ404"}, {Link("ONLY-IN-7")}},
    {{"KQ405"}, {Link("./l")}},
    {{"KQ406"}, {Link("")}},
    {{"KQ406"}, {Link("only\xff")}},
    {{"KQ406"}, {Link("e\xcc\x81")}},
    {{"KQ406"}, {Link("a\nb")}},
    {{"KQ406"}, {Link(std::string(1024, '/'))}},

    // What a package must hold.
    {{"KQ501"}, {Remove(kBinary)}},
    {{"KQ502"}, {Mode(kBinary, 0644)}},
    {{"KQ503"}, {Replace(kBinary, Kind::Link, "../Resources/large")}},
    {{"KQ503"}, {Replace(kBinary, Kind::File)}},
    {{"KQ503"}, {Replace(kBinary, Kind::File, "exit 0\n")}},
    {{"KQ504"}, {Remove(kInfo)}},
    {{"KQ504"}, {Replace(kInfo, Kind::Folder)}},
    {{"KQ403"}, {Replace("Contents/MacOS", Kind::Link, "Resources")}},
    {{"KQ505"}, {Info("[Version]\nmajor_version=1\nminor_version=2\nicon_overlay_version=3\n")}},
    {{"KQ505", "KQ509"}, {Info("[Product]\nbuild_version=7\n")}},
    {{"KQ506", "KQ509"}, {Info("[Version]\nbuild_version=7b\n")}},
    {{"KQ506", "KQ509"}, {Info("[Version]\nbuild_version=2147483648\n")}},
    {{"KQ509"}, {Info("\xef\xbb\xbf[Version]\nbuild_version=7\n")}},
    {{"KQ507"}, {Move(kInfo, 3)}},
    {{"KQ508", "KQ216"}, {Move(kBinary, 0)}},
    {{"KQ508"}, {Move(kLarge, 8)}},
    {{"KQ510"}, {Replace(kBinary, Kind::File, MachO())}},
    {{"KQ511"}, {Add("Contents/Info.plist", Kind::File, "<plist><dict/></plist>")}},
    {{"KQ511"}, {Add("Contents/Info.plist", Kind::Link, "Resources/large")}},
    {{"KQ512"}, {Info(std::string(kLargestInfo + 1, '\n'))}},
};

}  // namespace

class RulesTest : public QuayTest {};

TEST_F(RulesTest, FindEverySeed) {
    Codes sown = {"KQ301"};  // which concerns a folder alone
    for (const auto& [codes, seeds] : kSeeds) {
        SCOPED_TRACE(::testing::PrintToString(codes));
        Entries entries = GoodEntries();
        for (const Sow& sow : seeds) {
            sow(entries);
        }
        Findings findings;
        CheckTree(entries, kLargestPackage - 1, findings);
        if (findings.IsEmpty()) {
            ::Package package;
            package.entries = entries;
            ASSERT_FALSE(CheckContents(package, findings));
        }
        EXPECT_EQ(CodesOf(findings), codes);
        sown.insert(codes.begin(), codes.end());
    }
    for (const auto& [defect, texts] : AllDefects()) {
        const int code = static_cast<int>(defect);
        const bool isOurs = (code > 200 && code < 513) || code == 103 || code == 105;
        EXPECT_EQ(sown.count(IdOf(defect)), isOurs ? 1U : 0U) << IdOf(defect);
    }
}

TEST_F(RulesTest, AcceptedFindingsAreTold) {
    Findings findings;
    EXPECT_FALSE(findings.Accept("KQ404=Contents/Resources/l"));
    EXPECT_FALSE(findings.Accept("KQ212"));
    for (const char* harmful : {"KQ402", "KQ205=Contents/x", "KQ999", "404", ""}) {
        EXPECT_TRUE(findings.Accept(harmful)) << harmful;
    }
    findings.Add(Defect::LinkDangling, "Contents/Resources/l");
    findings.Add(Defect::LinkDangling, "Contents/Resources/m");
    findings.Add(Defect::NameLitter, "Contents/x~");
    EXPECT_EQ(CodesOf(findings), Codes{"KQ404"});
    EXPECT_EQ(findings.accepted().size(), 2U);
    for (int number = 0; number < 400; ++number) {
        findings.Add(Defect::LinkLoop, std::to_string(number));
    }
    EXPECT_EQ(findings.Total(), 401U);
    EXPECT_EQ(findings.found().at(Defect::LinkLoop).kept.size(), 25U);
}
