// What an archive may be, byte for byte.
#include "tools/quay-package/zip.h"

#include <filesystem>
#include <functional>
#include <random>

#include "extractor.h"
#include "quay-test.h"
#include "resources/str-table.h"
#include "tools/quay-package/package-check.h"
#include "tools/quay-package/rules.h"

namespace fs = std::filesystem;

class ZipTest : public QuayTest {
protected:
    // The tree that the launcher's extractor makes of an archive; empty where it fails.
    Tree Install(const std::string& bytes) const {
        Write(At("installed.kpk"), bytes);
        fs::remove_all(At("installed"));
        fs::create_directories(At("installed"));
        Extractor extractor;
        extractor.sourcePath = At("installed.kpk");
        extractor.destPath = At("installed");
        return extractor.Extract() == 0 ? ReadTree(At("installed")) : Tree();
    }

    // Small, with each kind of entry.
    static std::vector<Entry> SmallEntries() {
        std::vector<Entry> entries = GoodEntries();
        for (Entry& entry : entries) {
            entry.content.resize(std::min<std::size_t>(entry.content.size(), 200));
        }
        return entries;
    }
};

// Whatever single byte of a package changes: it is found, or what is installed is the same.
TEST_F(ZipTest, NoChangeOfOneByteGoesUnnoticed) {
    StrTable::InitStrTable();
    const std::string good = Zip(SmallEntries());
    const Tree tree = Install(good);
    ASSERT_EQ(tree.size(), SmallEntries().size());
    ASSERT_EQ(CheckBytes(good), Codes());
    int unnoticed = 0;
    std::mt19937 source(1);
    for (std::size_t at = 0; at < good.size(); ++at) {
        std::string bad = good;
        bad[at] = static_cast<char>(bad[at] ^ static_cast<int>(1 + source() % 255));
        if (CheckBytes(bad).empty()) {
            ++unnoticed;
            ASSERT_EQ(Install(bad), tree) << "byte " << at << ", " << static_cast<int>(bad[at]);
        }
    }
    // Times, and what the packer says of itself.
    EXPECT_LT(unnoticed, static_cast<int>(good.size()) / 2);
}

// However it is cut it is damaged, and nothing else is said.
TEST_F(ZipTest, ACutFileIsDamaged) {
    const std::string good = Zip(SmallEntries());
    for (std::size_t size = 4; size < good.size(); size += 7) {
        ASSERT_EQ(CheckBytes(good.substr(0, size)), Codes{"KQ102"}) << size;
    }
    for (const std::string& other : {std::string(), std::string("PK"), std::string("no archive\n"), "x" + good}) {
        EXPECT_EQ(CheckBytes(other), Codes{"KQ101"});
    }
    for (const char* format : {"pax", "7zip", "zip"}) {  // libarchive's zip has sizes behind the data
        WritePackage(At("other.kpk"), ClientEntries(7), format);
        EXPECT_EQ(CheckBytes(Read(At("other.kpk"))), Codes{std::string(format) == "zip" ? "KQ106" : "KQ101"}) << format;
    }
}

namespace {

// Changes a number in the headers of the entry with this name: `local` and `central` are its places there, or -1.
using Edit = std::function<void(std::string& bytes)>;
Edit Set(const std::string& name, int local, int central, const std::string& value) {
    return [=](std::string& bytes) {
        const std::size_t first = bytes.find(name);
        const std::size_t last = bytes.rfind(name);
        ASSERT_NE(first, last);
        if (local >= 0) {
            bytes.replace(first - 30 + static_cast<std::size_t>(local), value.size(), value);
        }
        if (central >= 0) {
            bytes.replace(last - 46 + static_cast<std::size_t>(central), value.size(), value);
        }
    };
}

std::string Number(std::uint32_t value) {
    return std::string(reinterpret_cast<const char*>(&value), 4);
}

}  // namespace

TEST_F(ZipTest, WhatPackDoesNotWriteIsRefused) {
    const std::string large = "Contents/Resources/large";
    const struct {
        const char* what;
        const char* code;
        Edit edit;
    } edits[] = {
        {"encrypted", "KQ104", Set(large, 6, 8, "\x01")},
        {"encrypted in front alone", "KQ102", Set(large, 6, -1, "\x01")},
        {"data behind sizes", "KQ106", Set(large, 6, 8, "\x08")},
        {"another way of packing", "KQ106", Set(large, 8, 10, "\x0c")},
        {"stored, with two sizes", "KQ106", Set(large, 8, 10, std::string(1, '\0'))},
        {"a folder with data", "KQ106", Set("Contents/Resources/empty/", 22, 24, "\x05")},
        {"made elsewhere", "KQ106", Set(large, -1, 5, std::string(1, '\0'))},
        {"a FIFO", "KQ302", Set(large, -1, 41, "\x11")},
        {"a file named as a folder", "KQ106", Set("Contents/Resources/empty/", -1, 41, "\x81")},
        {"a folder named as a file", "KQ106", Set(large, -1, 41, "\x41")},
        {"another local name", "KQ102", Set(large, 30, -1, "contents")},
        {"another local size", "KQ102", Set(large, 22, -1, Number(100))},
        {"another local sum", "KQ102", Set(large, 14, -1, Number(0))},
        {"another sum", "KQ102", Set(large, 14, 16, Number(0))},
        {"a smaller size", "KQ102", Set(large, 22, 24, Number(100))},
        {"a larger size", "KQ102", Set(large, 22, 24, Number(300))},
        {"a size beyond all limits", "KQ105", Set(large, 22, 24, Number(0xfffffff0))},
        {"a hidden size", "KQ106", Set(large, 22, 24, Number(0xffffffff))},
        {"a hidden place", "KQ106", Set(large, -1, 42, Number(0xffffffff))},
        {"the place of another", "KQ102", Set(large, -1, 42, Number(0))},
        {"a further comment", "KQ102", [](std::string& bytes) { bytes += "x"; }},
        {"a comment", "KQ102", [](std::string& bytes) { bytes[bytes.size() - 2] = 1, bytes += "x"; }},
        {"something between", "KQ102",
         [](std::string& bytes) {
             const std::size_t at = bytes.find("PK\1\2");
             bytes.insert(at, "xxxx");
             std::uint32_t offset = static_cast<std::uint32_t>(at + 4);
             bytes.replace(bytes.size() - 6, 4, Number(offset));
         }},
        {"more entries than there are", "KQ102",
         [](std::string& bytes) { ++bytes[bytes.size() - 12], ++bytes[bytes.size() - 14]; }},
        {"fewer entries than there are", "KQ102",
         [](std::string& bytes) { --bytes[bytes.size() - 12], --bytes[bytes.size() - 14]; }},
        {"a name that does not say its encoding", "KQ106", Set("Contents/Resources/Gr", 7, 9, std::string(1, '\0'))},
        {"a zero byte in a name", "KQ106", Set(large, 40, 56, std::string(1, '\0'))},
    };
    for (const auto& edit : edits) {
        std::string bytes = Zip(SmallEntries());
        edit.edit(bytes);
        EXPECT_EQ(CheckBytes(bytes), Codes{edit.code}) << edit.what;
    }
    // The damaged entry is the one that is named.
    std::string bytes = Zip(SmallEntries());
    bytes[bytes.find(large) + large.size() + 3] ^= 0x10;
    Write(At("bad.kpk"), bytes);
    EXPECT_NE(Run({"check", At("bad.kpk")}).output.find("KQ102  Contents/Resources/large: the archive is damaged"),
              std::string::npos);
}

// What another tool wrote is good where it says the same one thing.
TEST_F(ZipTest, AnotherToolsArchiveIsGood) {
    const std::string client = MakeClient();
    const char script[] = R"(
import os, sys, zipfile
with zipfile.ZipFile(sys.argv[2], "w", zipfile.ZIP_DEFLATED) as z:
    names = sorted(os.path.relpath(os.path.join(r, n), sys.argv[1]) for r, d, f in os.walk(sys.argv[1]) for n in d + f)
    last = ["Contents/MacOS/cloud-quay-ui", "Contents/Resources/INFO"]
    for name in [n for n in names if n not in last] + last:
        path = os.path.join(sys.argv[1], name)
        if os.path.islink(path):
            info = zipfile.ZipInfo(name)
            info.create_system, info.external_attr = 3, 0o120777 << 16
            z.writestr(info, os.readlink(path))
        else:
            z.write(path, name)
)";
    Write(At("pack.py"), script);
    EXPECT_EQ(RunProcess({"/usr/bin/python3", At("pack.py"), client, At("p.kpk")}, environment_).exitCode, 0);
    EXPECT_EQ(Check(At("p.kpk")), Codes());
}

// A hundred random trees: what is written reads back, installs, and does not depend on anything but the entries; sizes
// around the blocks' ends included.
TEST_F(ZipTest, WhatIsWrittenReadsBack) {
    std::mt19937 source(7);
    for (int round = 0; round < 30; ++round) {
        std::vector<Entry> entries = GoodEntries();
        for (int number = 0; number < 5; ++number) {
            Entry entry;
            entry.path = "Contents/Resources/file-" + std::to_string(number);
            entry.kind = Kind::File;
            entry.mode = source() % 2 == 0 ? 0644 : 0755;
            entry.content.resize((source() % 3) * 65536 + source() % 3);
            const unsigned spread = source() % 256 + 1;
            for (char& byte : entry.content) {
                byte = static_cast<char>(source() % spread);
            }
            entries.insert(entries.end() - 2, entry);
        }
        const std::string bytes = Zip(entries);
        ASSERT_EQ(CheckBytes(bytes), Codes());
        ASSERT_EQ(Zip(entries), bytes);
    }
}

// More entries than the plain end of a zip archive can count.
TEST_F(ZipTest, ManyEntries) {
    std::vector<Entry> entries = SmallEntries();
    Entry entry = entries[4];  // a folder
    while (entries.size() < 65535) {
        entry.path = "Contents/Resources/" + std::to_string(entries.size());
        entries.insert(entries.end() - 2, entry);
    }
    EXPECT_EQ(CheckBytes(Zip(entries)), Codes());
}
