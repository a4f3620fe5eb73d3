// Every defect that can be sown is found, under its own code and no other than those that follow from it.
#include "product-layout.h"
#include "quay-test.h"
#include "tools/quay-package/content.h"
#include "tools/quay-package/text.h"

namespace {

constexpr char kLarge[] = "Contents/Resources/large";
constexpr char kEmpty[] = "Contents/Resources/empty";
constexpr char kElf[] = {0x7f, 'E', 'L', 'F', 0};

using Entries = std::vector<Entry>;
using Sow = std::function<void(Entries&)>;

// A further entry in front of the binary, where anything may be.
Sow Add(const std::string& path, Kind kind = Kind::File, const std::string& text = {}) {
    return [=](Entries& entries) { entries.insert(entries.end() - 2, MakeEntry(path, kind, text)); };
}
Sow Link(const std::string& name, const std::string& target) {
    return Add("Contents/Resources/" + name, Kind::Link, target);
}
Sow Mode(const char* path, unsigned mode) {
    return [=](Entries& entries) { FindEntry(entries, path)->mode = mode; };
}
// Puts another object under the name of one.
Sow Replace(const char* path, Kind kind, const std::string& text = {}, unsigned mode = 0755) {
    return [=](Entries& entries) { *FindEntry(entries, path) = MakeEntry(path, kind, text, mode); };
}
Sow Info(const std::string& text) {
    return Replace(kInfoFile, Kind::File, text, 0644);
}
Sow Remove(const char* path) {
    return [=](Entries& entries) { entries.erase(FindEntry(entries, path)); };
}
// Moves an entry to a place counted from the front.
Sow Move(const char* path, std::ptrdiff_t to) {
    return [=](Entries& entries) {
        const Entry entry = *FindEntry(entries, path);
        Remove(path)(entries);
        entries.insert(entries.begin() + to, entry);
    };
}

// What is found when all of a row's seeds are sown together.
const std::pair<Lines, std::vector<Sow>> kSeeds[] = {
    {{},
     {Add("Contents/Resources/~"), Add("Contents/Resources/worker", Kind::File, kElf), Link("l", "../.."),
      Link("m", "empty/../../MacOS/./cloud-quay-ui")}},
    {{"KQ201", "KQ203", "KQ204", "KQ204", "KQ206", "KQ208", "KQ209", "KQ210", "KQ211", "KQ211", "KQ212", "KQ212",
      "KQ213", "KQ214", "KQ216", "KQ216", "KQ216"},
     {Add("Contents/Resources/q\xff\xfeq"), Add("/Contents/Resources/x"), Add("./Contents/Resources/x"),
      Add("Contents//Resources/only-in-7"), Add("Contents/Resources/GRÖSSE und 日本語.txt"),
      Add("Contents/Resources/a\nb"), Add("Contents/" + std::string(256, 'n')), Add("ContentsToo"),
      Add("Contents/Resources/._large"), Add("__MACOSX"), Add("Contents/.DS_Store"), Add("Contents/Resources/large~"),
      Add("Contents/Resources\\x"), Add("Contents/Resources/large/x")}},
    {{"KQ202", "KQ202"}, {Add("Contents/..", Kind::Folder), Add("Contents/../x")}},
    {{"KQ205"}, {Add(kEmpty, Kind::Link, ".."), Add("Contents/Resources/empty/x")}},
    {{"KQ206"}, {Add("Contents/resources", Kind::Folder), Add("Contents/resources/x")}},
    {{"KQ207", "KQ215"}, {Add("Contents/Resources/Gro\xcc\x88ße und 日本語.txt")}},
    {{"KQ216"}, {Remove("Contents/MacOS")}},
    {{"KQ216", "KQ216"}, {Move("Contents/Resources", 3)}},
    {{"KQ302", "KQ303", "KQ304", "KQ305", "KQ307"},
     {Add("Contents/fifo", Kind::Other), Mode(kEmpty, 01755), Mode(kLarge, 0044),
      Mode("Contents/Resources/only-in-7", 0666), Mode("Contents/Resources/current", 0755)}},
    {{"KQ304", "KQ307"}, {Mode(kEmpty, 0644), Mode(kLarge, 0600)}},
    {{"KQ401", "KQ401", "KQ402", "KQ402", "KQ402", "KQ403", "KQ404", "KQ404", "KQ405", "KQ406", "KQ406", "KQ406",
      "KQ406", "KQ406"},
     {Link("a", "/usr"), Link("b", "../../.."), Link("up", ".."), Link("c", "up/../.."), Link("out", "/"),
      Link("d", "out/x"), Link("e", "empty"), Add("Contents/Resources/e/x"), Link("f", "nowhere"), Link("g", "large/x"),
      Link("h", "./h"), Link("i", ""), Link("j", "only\xff"), Link("k", "e\xcc\x81"), Link("l", "a\nb"),
      Link("m", std::string(1024, '/'))}},
    {{"KQ103"}, {[](Entries& entries) { entries.clear(); }}},
    {{"KQ105"}, {[](Entries& entries) { entries.front().size = kLargestPackage; }}},
    {{"KQ501", "KQ504"}, {Remove(kClientFile), Replace(kInfoFile, Kind::Folder)}},
    {{"KQ503", "KQ504"}, {Replace(kClientFile, Kind::Link, "../Resources/large"), Remove(kInfoFile)}},
    {{"KQ502", "KQ508", "KQ512"},
     {Mode(kClientFile, 0644), Move(kLarge, 8), Info(std::string(kLargestInfo + 1, '\n'))}},
    {{"KQ507"}, {Move(kInfoFile, 3)}},
    {{"KQ306", "KQ503", "KQ506", "KQ509", "KQ509", "KQ509", "KQ511"},
     {Replace(kClientFile, Kind::File, kElf), Add("Contents/MacOS/worker", Kind::File, kElf),
      Info("[Version]\nbuild_version=7b\n"), Add("Contents/Info.plist", Kind::File, "<plist><dict/></plist>")}},
    {{"KQ505", "KQ509", "KQ509", "KQ509", "KQ510"},
     {Replace(kClientFile, Kind::File, MachO()), Info("[Product]\nbuild_version=7\n")}},
};

}  // namespace

class RulesTest : public QuayTest {};

TEST_F(RulesTest, FindEverySeed) {
    Codes sown = {"KQ301"};  // which concerns a folder alone
    for (const auto& [codes, seeds] : kSeeds) {
        ::Package package;
        package.entries = GoodEntries();
        for (const Sow& sow : seeds) {
            sow(package.entries);
        }
        Findings findings;
        CheckTree(package.entries, kLargestPackage - 1, findings);
        if (findings.IsEmpty()) {
            ASSERT_FALSE(CheckContents(package, findings));
        }
        EXPECT_EQ(CodesOf(findings), codes);
        sown.insert(codes.begin(), codes.end());
    }
    ExpectAll(sown, Defect::NameNotUtf8, Defect::InfoTooLarge);
}

TEST_F(RulesTest, AcceptedFindingsDoNotCountAndOfMostAFewAreKept) {
    Findings findings;
    EXPECT_FALSE(findings.Accept("KQ404=l"));
    for (const char* harmful : {"KQ402", "KQ205=Contents/x", "KQ513", "KQ999", "404", ""}) {
        EXPECT_TRUE(findings.Accept(harmful)) << harmful;
    }
    findings.Add(Defect::LinkDangling, "l");
    EXPECT_TRUE(findings.IsEmpty());
    for (int number = 0; number < 400; ++number) {
        findings.Add(Defect::LinkDangling, std::to_string(number));
    }
    EXPECT_EQ(findings.Total(), 400U);
    EXPECT_EQ(findings.found().at(Defect::LinkDangling).kept.size(), 25U);
}

TEST_F(RulesTest, ProgramsAreWholeOnes) {
    const auto recognise = [](const std::string& bytes) {
        return Recognise(bytes.substr(0, kProgramFront), static_cast<std::int64_t>(bytes.size()));
    };
    const std::string fat("\xca\xfe\xba\xbe\0\0\0\1\1\0\0\7\0\0\0\3\0\0\0\x1c\0\0\0\x6c\0\0\0\2", 28);
    const std::pair<std::string, Program> programs[] = {{Read(KQ_LAUNCHER), Program::Elf},
                                                        {MachO(), Program::MachO},
                                                        {fat + MachO(), Program::MachO},
                                                        {"#! /usr/bin/env python3\n", Program::Script}};
    for (const auto& [whole, program] : programs) {
        EXPECT_EQ(recognise(whole), program);
        EXPECT_EQ(recognise(whole.substr(0, whole.size() - 1)), Program::Broken);
        for (std::size_t size = 0; size < whole.size(); size += 1 + whole.size() / 200) {
            EXPECT_LE(recognise(whole.substr(0, size)), Program::Broken) << size;
        }
    }
    for (const char* none : {"#!\n", "#!sh\n", "#!/\n", "#!/bin/sh\r\n", "exit 0\n"}) {
        EXPECT_EQ(recognise(none), none[0] == '#' ? Program::Broken : Program::None) << none;
    }
}

TEST_F(RulesTest, PropertyListsInBothForms) {
    // One pair; its texts lie at 11 and 32, the places of all three at 39.
    std::string binary(
        "bplist00\xd1\1\2_\x10\x12"
        "CFBundleExecutableVva&lue\x08\x0b\x20\0\0\0\0\0\0\1\1",
        50);
    for (const char last : {'\3', '\0', '\x27'}) {
        binary += std::string(7, '\0') + last;
    }
    const std::string front =
        "<plist><dict><key>a</key><dict><key>CFBundleExecutable</key><string>inner</string></dict>";
    EXPECT_EQ(ExecutableOf(binary), "va&lue");
    EXPECT_EQ(ExecutableOf(front + "<key>CFBundleExecutable</key><string>va&amp;lue</string></dict></plist>"),
              "va&lue");
    EXPECT_EQ(ExecutableOf(front + "<key>CFBundleExecutable</key><true/></dict></plist>"), "");
}

// Refused is what desktop-file-validate refuses; beyond that, what starts another program.
TEST_F(RulesTest, DesktopEntries) {
    const std::string bare = "[Desktop Entry]\nType=Application\nName=X\n";
    const std::string exec = bare + "Exec=/o/Contents/MacOS/launcher";
    const std::string good = exec + "\n";
    const auto expect = [](bool isTaken, const std::string& front, const Lines& ends) {
        for (const std::string& end : ends) {
            const std::string text = front + end + "\n";
            EXPECT_EQ(DesktopEntryFault(text, "Contents/MacOS/launcher").empty(), isTaken) << text;
        }
    };
    expect(true, good,
           {"\n# a", "Name[de]=Ü\nTerminal = false\nCategories=Network;X-Own;\nX-Any=1",
            "Version=1.0\nKeywords=a;b;\nTryExec=/bin/true\nPath=/ü\nComment=a\\xb",
            "Actions=new;\n[Desktop Action new]\nName=New\nExec=/o/Contents/MacOS/launcher --new"});
    expect(true, exec, {" %U --icon %i %%"});
    expect(true, bare, {"Exec=\"/opt/my X.app/Contents/MacOS/launcher\" %f"});
    expect(false, "", {"", "[Other]\nA=1\n" + good, good.substr(0, 16) + good.substr(33)});
    expect(false, good,
           {"Name=Y", "[Desktop Entry]", "no line", "Colour=red", "Terminal=maybe", "Categories=Nonsense;",
            "Comment=\xff"});
    expect(false, exec, {" %z", " %f %U", " > log", "2"});
    expect(false, bare + "Exec=",
           {"\"/o/Contents/MacOS/launcher", "\"/o/$HOME/Contents/MacOS/launcher\"", "launcher",
            "\"/o/Contents/MacOS\" launcher"});
}

TEST_F(RulesTest, WhatCantBeSeenIsPrintedByItsBytes) {
    EXPECT_EQ(Printable("ü\\ \n\u202E\u2028"), "ü\\\\ \\x0a\\xe2\\x80\\xae\\xe2\\x80\\xa8");
    EXPECT_EQ(Printable("a\x80\u00fc"), "a\\x80\\xc3\\xbc") << "not UTF-8";
}
