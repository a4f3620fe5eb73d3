// What an archive may be, byte for byte.
#include "tools/quay-package/zip.h"

#include <algorithm>
#include <random>

#include "extractor.h"
#include "quay-test.h"
#include "resources/str-table.h"
#include "tools/quay-package/checks.h"

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

    const std::string good_ = Zip(SmallEntries());
};

// Whatever single byte of a package changes: it is found, or what is installed is the same.
TEST_F(ZipTest, NoChangeOfOneByteGoesUnnoticed) {
    StrTable::InitStrTable();
    const Tree tree = Install(good_);
    ASSERT_EQ(tree.size(), SmallEntries().size());
    ASSERT_EQ(CheckBytes(good_), Codes());
    std::size_t unnoticed = 0;
    std::mt19937 source(1);
    for (std::size_t at = 0; at < good_.size(); ++at) {
        std::string bad = good_;
        bad[at] = static_cast<char>(bad[at] ^ static_cast<int>(1 + source() % 255));
        if (CheckBytes(bad).empty()) {
            ++unnoticed;
            ASSERT_EQ(Install(bad), tree) << "byte " << at << ", " << static_cast<int>(bad[at]);
        }
    }
    // Times, and what the packer says of itself.
    EXPECT_LT(unnoticed, good_.size() / 2);
}

// However it is cut it is damaged, and nothing else is said.
TEST_F(ZipTest, ACutFileIsDamaged) {
    for (std::size_t size = 4; size < good_.size(); size += 7) {
        ASSERT_EQ(CheckBytes(good_.substr(0, size)), Codes{"KQ102"}) << size;
    }
    for (const std::string& other : {std::string(), std::string("PK"), std::string("no archive\n"), "x" + good_}) {
        EXPECT_EQ(CheckBytes(other), Codes{"KQ101"});
    }
    for (const std::string format : {"pax", "7zip", "zip"}) {  // libarchive's zip has sizes behind the data
        WritePackage(At("other.kpk"), ClientEntries(7), format);
        EXPECT_EQ(CheckBytes(Read(At("other.kpk"))), Codes{format == "zip" ? "KQ106" : "KQ101"}) << format;
    }
}

namespace {

using Edit = std::function<void(std::string& bytes)>;

// Changes a number of `width` bytes in the two headers of the entry with this name, at these places there; 0: not.
Edit Set(const std::string& name, std::size_t local, std::size_t central, std::uint32_t value, std::size_t width = 1) {
    return [=](std::string& bytes) {
        for (const std::size_t at :
             {local == 0 ? 0 : bytes.find(name) - 30 + local, central == 0 ? 0 : bytes.rfind(name) - 46 + central}) {
            bytes.replace(at, at == 0 ? 0 : width, reinterpret_cast<const char*>(&value), at == 0 ? 0 : width);
        }
    };
}

// Adds to both counts of entries at the end.
Edit Count(int more) {
    return [more](std::string& bytes) {
        bytes[bytes.size() - 12] = static_cast<char>(bytes[bytes.size() - 12] + more);
        bytes[bytes.size() - 14] = static_cast<char>(bytes[bytes.size() - 14] + more);
    };
}

}  // namespace

TEST_F(ZipTest, WhatPackDoesNotWriteIsRefused) {
    const std::string large = "Contents/Resources/large";
    const std::string empty = "Contents/Resources/empty/";
    const auto between = [](std::string& bytes) {
        const auto offset = static_cast<std::uint32_t>(bytes.find("PK\1\2"));
        bytes.insert(offset, "xxxx");
        bytes[bytes.size() - 6] += 4;
    };
    const struct {
        const char* what;
        const char* code;
        Edit edit;
    } edits[] = {
        {"encrypted", "KQ104", Set(large, 6, 8, 1)},
        {"encrypted in front alone", "KQ102", Set(large, 6, 0, 1)},
        {"data behind sizes", "KQ106", Set(large, 6, 8, 8)},
        {"another way of packing", "KQ106", Set(large, 8, 10, 12)},
        {"stored, with two sizes", "KQ106", Set(large, 8, 10, 0)},
        {"a folder with data", "KQ106", Set(empty, 22, 24, 5)},
        {"made elsewhere", "KQ106", Set(large, 0, 5, 0)},
        {"a FIFO", "KQ302", Set(large, 0, 41, 0x11)},
        {"a file named as a folder", "KQ106", Set(empty, 0, 41, 0x81)},
        {"a folder named as a file", "KQ106", Set(large, 0, 41, 0x41)},
        {"another local name", "KQ102", Set(large, 30, 0, 'c')},
        {"another local size", "KQ102", Set(large, 22, 0, 100)},
        {"another local sum", "KQ102", Set(large, 14, 0, 0, 4)},
        {"another sum", "KQ102", Set(large, 14, 16, 0, 4)},
        {"a smaller size", "KQ102", Set(large, 22, 24, 100)},
        {"a larger size", "KQ102", Set(large, 22, 24, 300, 4)},
        {"a size beyond all limits", "KQ105", Set(large, 22, 24, 0xfffffff0, 4)},
        {"a hidden size", "KQ106", Set(large, 22, 24, 0xffffffff, 4)},
        {"a hidden place", "KQ106", Set(large, 0, 42, 0xffffffff, 4)},
        {"the place of another", "KQ102", Set(large, 0, 42, 0, 4)},
        {"a further comment", "KQ102", [](std::string& bytes) { bytes += "x"; }},
        {"a comment", "KQ102", [](std::string& bytes) { bytes[bytes.size() - 2] = 1, bytes += "x"; }},
        {"something between", "KQ102", between},
        {"more entries than there are", "KQ102", Count(1)},
        {"fewer entries than there are", "KQ102", Count(-1)},
        {"a name that does not say its encoding", "KQ106", Set("Contents/Resources/Gr", 7, 9, 0)},
        {"a zero byte in a name", "KQ106", Set(large, 40, 56, 0)},
    };
    for (const auto& edit : edits) {
        std::string bytes = good_;
        edit.edit(bytes);
        EXPECT_EQ(CheckBytes(bytes), Codes{edit.code}) << edit.what;
    }
    // The damaged entry is the one that is named.
    std::string bytes = good_;
    bytes[bytes.find(large) + large.size() + 3] ^= 0x10;
    Write(At("bad.kpk"), bytes);
    EXPECT_NE(Run("check @bad.kpk").output.find("KQ102  Contents/Resources/large: the archive is damaged"),
              std::string::npos);
}

// What another tool wrote is good where it says the same one thing.
TEST_F(ZipTest, AnotherToolsArchiveIsGood) {
    MakeClient();
    const char script[] = R"(
import os, sys, zipfile
os.chdir(sys.argv[2])
with zipfile.ZipFile(sys.argv[1], "w", zipfile.ZIP_DEFLATED) as package:
    for name in sys.argv[3:]:
        link = zipfile.ZipInfo(name)
        link.create_system, link.external_attr = 3, 0o120777 << 16
        package.writestr(link, os.readlink(name)) if os.path.islink(name) else package.write(name)
)";
    Lines line = {"/usr/bin/python3", "-c", script, At("p.kpk"), At("client")};
    for (const PackageEntry& entry : ClientEntries(7)) {
        line.push_back(entry.path);
    }
    EXPECT_EQ(RunProcess(line, environment_).exitCode, 0);
    EXPECT_EQ(Check("@p.kpk"), Codes());
}

// Random trees: what is written reads back, and does not depend on anything but the entries; sizes around the blocks'
// ends included.
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
            std::generate(entry.content.begin(), entry.content.end(),
                          [&] { return static_cast<char>(source() % spread); });
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
