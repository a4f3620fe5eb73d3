// What an archive may be, byte for byte.
#include "tools/quay-package/zip.h"

#include <random>

#include "extractor.h"
#include "quay-test.h"
#include "resources/str-table.h"

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

    const std::string good_ = Zip(GoodEntries());
};

// Whatever byte of a package changes, alone or with its twin in the entry's other header: it is found, or what is
// installed is the same.
TEST_F(ZipTest, NoChangeOfAByteGoesUnnoticed) {
    StrTable::InitStrTable();
    const Tree tree = Install(good_);
    ASSERT_EQ(tree.size(), GoodEntries().size());
    ASSERT_EQ(CheckBytes(good_), Lines());
    std::mt19937 source(1);
    const auto change = [&](std::size_t at, std::size_t twin) {
        const auto bits = static_cast<char>(1 + source() % 255);
        std::string bad = good_;
        bad[twin] = static_cast<char>(bad[twin] ^ bits);
        bad[at] = static_cast<char>(good_[at] ^ bits);
        ASSERT_TRUE(!CheckBytes(bad).empty() || Install(bad) == tree) << "byte " << at << ", bits " << int{bits};
    };
    for (std::size_t at = 0; at < good_.size(); ++at) {
        change(at, at);
    }
    change(good_.size() - 12, good_.size() - 14);  // the counts of entries
    for (std::size_t local = 0, central = 0; (local = good_.find("PK\3\4", local)) != std::string::npos; ++local) {
        central = good_.find("PK\1\2", central + 1);
        for (std::size_t field = 4; field < 30; ++field) {
            change(local + field, central + field + 2);
        }
    }
}

TEST_F(ZipTest, ACutFileIsDamaged) {
    for (std::size_t size = 4; size < good_.size(); size += 7) {
        ASSERT_EQ(CheckBytes(good_.substr(0, size)), Lines{"KQ102"}) << size;
    }
    for (const std::string& other : {std::string(), std::string("PK"), "x" + good_}) {
        EXPECT_EQ(CheckBytes(other), Lines{"KQ101"});
    }
}

TEST_F(ZipTest, WhatPackDoesNotWriteIsRefused) {
    const std::string large = "Contents/Resources/large";
    // The code, and what is set in both headers of that entry, at these places there.
    const std::tuple<const char*, std::size_t, std::size_t, std::string> edits[] = {
        {"KQ104", 6, 8, "\1"},
        {"KQ106", 6, 8, "\x8"},
        {"KQ106", 22, 24, "\xff\xff\xff\xff"},
        {"KQ105", 22, 24, "\xf0\xff\xff\xff"},
        {"KQ106", 40, 56, std::string(1, '\0')},
    };
    for (const auto& [code, local, central, text] : edits) {
        std::string bytes = good_;
        bytes.replace(bytes.find(large) - 30 + local, text.size(), text);
        bytes.replace(bytes.rfind(large) - 46 + central, text.size(), text);
        EXPECT_EQ(CheckBytes(bytes), Lines{code}) << central;
    }
    std::string fifo = good_;
    fifo[fifo.rfind(large) - 5] = 0x11;
    EXPECT_EQ(CheckBytes(fifo), Lines{"KQ302"});
    std::string comment = good_ + "x";
    comment[good_.size() - 2] = 1;
    std::string between = good_;
    between.insert(good_.find("PK\1\2"), "xxxx");
    between[between.size() - 6] = static_cast<char>(between[between.size() - 6] + 4);
    for (const std::string& bytes : {good_ + "x", comment, between}) {
        EXPECT_EQ(CheckBytes(bytes), Lines{"KQ102"});
    }
}

// What another tool wrote is good but for the order of its entries.
TEST_F(ZipTest, AnotherToolsArchiveHasAGoodForm) {
    MakeClient();
    const std::string script = "cd \"$0\" && exec /usr/bin/python3 -m zipfile -c ../p.kpk Contents";
    EXPECT_EQ(RunProcess({"/bin/sh", "-c", script, At("client")}, environment_).exitCode, 0);
    EXPECT_EQ(Find("check @p.kpk"), (Codes{"KQ507", "KQ508"}));
}

// More entries than the plain end of a zip archive can count; and more than there may be, which the text tells from too
// many bytes.
TEST_F(ZipTest, ManyEntries) {
    std::vector<Entry> entries = GoodEntries();
    while (entries.size() < 65535) {
        const std::string path = "Contents/Resources/" + std::to_string(entries.size());
        entries.insert(entries.end() - 2, MakeEntry(path, Kind::Folder));
    }
    std::string bytes = Zip(entries);
    EXPECT_EQ(CheckBytes(bytes), Lines());
    for (const std::size_t count : {74U, 66U}) {
        const std::uint64_t tooMany = kMostEntries + 1;
        bytes.replace(bytes.size() - count, 8, reinterpret_cast<const char*>(&tooMany), 8);
    }
    Write(At("bad.kpk"), bytes);
    EXPECT_NE(Run("check @bad.kpk").output.find("(1000001 entries, the limit is 1000000)"), std::string::npos);
}
