#include "log/config.h"

#include <test-folder.h>

#include <climits>
#include <cstring>

namespace {

using Entries = Config::Entries;

struct Line {
    std::string text;
    std::string key;
    std::string value;
};

// The result of parse() on a copy of the line.
int Parse(const std::string& line, std::string& key, std::string& value, bool keep_quotes = false) {
    Config config;
    config.keep_quotes = keep_quotes;
    std::string buffer = line;
    return config.parse(buffer.data(), key, value);
}

class ConfigTest : public FolderTest {
protected:
    // Reads a file with this text into `config`.
    int Read(Config& config, const std::string& text) const {
        Write(At("file"), text);
        return config.read(At("file"));
    }
};

TEST(ConfigLine, AcceptedLines) {
    const Line lines[] = {
        {"key=a\n", "key", "a"},
        {"key=a", "key", "a"},
        {"  key  =  a  \n", "key", "a"},
        {"\t\v\fkey\t=\ta\t\n", "key", "a"},
        {"key=a\r\n", "key", "a"},
        {"key=a # comment\n", "key", "a"},
        {"key=a#b\n", "key", "a#b"},
        {"key=#x\n", "key", "#x"},
        {"key=a=b\n", "key", "a=b"},
        {"key=a\"b'c\n", "key", "a\"b'c"},
        {"key=\xC3\xBC\xFF\n", "key", "\xC3\xBC\xFF"},
        {"key=\n=a\n", "key", "=a"},  // a line feed is a blank like any other
        {"key=\"a b\" # comment\n", "key", "a b"},
        {"key=\"a b\"#comment\n", "key", "a b"},
        {"key=\"# = '\"\n", "key", "# = '"},
        {"key='say \"hi\"'\n", "key", "say \"hi\""},
        {"key=\"\"\n", "key", ""},
        {"key=''", "key", ""},
        {"=a\n", "", "a"},
        {"a.b-c_d=1\n", "a.b-c_d", "1"},
        {"Key9=1\n", "Key9", "1"},
    };
    for (const Line& line : lines) {
        SCOPED_TRACE(line.text);
        std::string key = "unset";
        std::string value = "unset";
        EXPECT_EQ(Parse(line.text, key, value), Config::PARSE_ENTRY);
        EXPECT_EQ(key, line.key);
        EXPECT_EQ(value, line.value);
    }
}

TEST(ConfigLine, LinesWithNothingAndRefusedLines) {
    const std::pair<const char*, int> lines[] = {
        {"", 1},
        {"\n", 1},
        {"   \t\r\n", 1},
        {"# comment\n", 1},
        {"   # comment\n", 1},
        {"#", 1},
        {"key#anything\n", 1},
        {"key", 1},
        {"  key", 1},
        {"key\n", 2},
        {"key ", 2},
        {"key #anything\n", 2},
        {"key value\n", 2},
        {"key!=1\n", 2},
        {"k\xC3\xBCy=1\n", 2},
        {"key=\n", 2},
        {"key=", 2},
        {"key=   \n", 2},
        {"key=   # comment\n", 2},
        {"key=a b\n", 2},
        {"key=a\tb\n", 2},
        {"key=a\x7F\n", 2},
        {"key=\x01\n", 2},
        {"key=\"a\" b\n", 2},
        {"key=\"a\n", 2},
        {"key=\"a'\n", 2},
        {"key=\"\n", 2},
        {"key=\"a\tb\"\n", 2},
        {"key=\"a\"\"\n", 2},
        {"\"key\"=a\n", 2},
    };
    for (const auto& [text, result] : lines) {
        SCOPED_TRACE(text);
        std::string key = "unset";
        std::string value = "unset";
        EXPECT_EQ(Parse(text, key, value), result);
        EXPECT_EQ(key + value, "unsetunset");
    }
}

TEST(ConfigLine, QuotesStayOnRequest) {
    const std::pair<const char*, const char*> lines[] = {
        {"key=\"a b\"\n", "\"a b\""}, {"key='a'\n", "'a'"}, {"key=\"\"\n", "\"\""}, {"key=a\n", "a"}};
    for (const auto& [text, expected] : lines) {
        std::string key;
        std::string value;
        EXPECT_EQ(Parse(text, key, value, true), Config::PARSE_ENTRY);
        EXPECT_EQ(value, expected);
    }
}

TEST(ConfigLine, EveryByteHasItsClass) {
    const std::string spaces = "\t\n\v\f\r ";
    const std::string keys = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_.";
    for (int byte = 0; byte <= UCHAR_MAX; ++byte) {
        SCOPED_TRACE(byte);
        const auto unsigned_byte = static_cast<unsigned char>(byte);
        const char character = static_cast<char>(unsigned_byte);
        EXPECT_EQ(Config::is_space(unsigned_byte), spaces.find(character) != std::string::npos);
        EXPECT_EQ(Config::is_key_char(unsigned_byte), keys.find(character) != std::string::npos);
        EXPECT_EQ(Config::is_value_char(unsigned_byte), byte > 31 && byte != 127);
    }
}

TEST_F(ConfigTest, ReadsWholeFiles) {
    const std::string ten = "a=1\nb=2\nc=3\nd=4\ne=5\nf=6\ng=7\nh=8\ni=9\nj=10\n";
    const struct {
        std::string text;
        int result;
        Entries entries;
    } files[] = {
        {"", 0, {}},
        {"# only\n\n   # comments\n", 0, {}},
        {"b=1\na=2\nB=3\n", 0, {{"B", "3"}, {"a", "2"}, {"b", "1"}}},
        {"key=1\nother=2\nkey=3\n", 0, {{"key", "3"}, {"other", "2"}}},
        {"a=1\nkey=2", 0, {{"a", "1"}, {"key", "2"}}},
        {"a=1\nkey", 0, {{"a", "1"}}},
        {"key\n", -1, {}},
        {"key=1\r\nother=2\r\n", 0, {{"key", "1"}, {"other", "2"}}},
        {ten + "bad\n", -1, {}},
        {"bad\n" + ten, -1, {}},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.text);
        Config config;
        EXPECT_EQ(Read(config, file.text), file.result);
        EXPECT_EQ(Entries(config.begin(), config.end()), file.entries);
    }
}

TEST_F(ConfigTest, TakesLongLinesInPiecesOf8191Bytes) {
    const std::string long_value(8189, 'v');  // with "k=" one piece
    const struct {
        std::string text;
        int result;
        Entries entries;
    } files[] = {
        {"k=" + long_value.substr(1) + "\n", 0, {{"k", long_value.substr(1)}}},
        {"k=" + long_value + "\nz=1\n", 0, {{"k", long_value}, {"z", "1"}}},  // the second piece is a line feed
        {"k=" + long_value + "z=1\n", 0, {{"k", long_value}, {"z", "1"}}},
        {"k=" + long_value + "z\n", -1, {}},
        {"k=" + long_value + "z", 0, {{"k", long_value}}},
        {"k=\"" + long_value + "\"\n", -1, {}},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.text.substr(8180));
        Config config;
        EXPECT_EQ(Read(config, file.text), file.result);
        EXPECT_EQ(Entries(config.begin(), config.end()), file.entries);
    }
}

TEST_F(ConfigTest, ASecondReadMergesAndABadOneClears) {
    Config config;
    EXPECT_EQ(Read(config, "a=1\nb=1\n"), 0);
    EXPECT_EQ(Read(config, "b=2\nc=2\n"), 0);
    const Entries merged = {{"a", "1"}, {"b", "2"}, {"c", "2"}};
    EXPECT_EQ(Entries(config.begin(), config.end()), merged);

    EXPECT_EQ(config.read(""), -1);
    EXPECT_EQ(config.read(At("missing")), -1);
    EXPECT_EQ(Entries(config.begin(), config.end()), merged);

    EXPECT_EQ(Read(config, "d=4\nbad\n"), -1);
    EXPECT_EQ(config.begin(), config.end());
}

TEST_F(ConfigTest, NumbersAtTheFrontOfAValue) {
    const std::pair<const char*, int> values[] = {
        {"7", 7},
        {"-3", -3},
        {"+8", 8},
        {"12abc", 12},
        {"abc", 0},
        {"0x10", 0},
        {"''", 0},
        {"' 5'", 5},
        {"010", 10},
        {"1,000", 1},
        {"2147483648", INT_MAX},
        {"-2147483649", INT_MIN},
        {"99999999999999999999", INT_MAX},
    };
    for (const auto& [value, number] : values) {
        SCOPED_TRACE(value);
        Config config;
        EXPECT_EQ(Read(config, std::string("key=") + value + "\n"), 0);
        EXPECT_EQ(config.get_int("key"), number);
    }
}

TEST_F(ConfigTest, LookingUpAMissingKeyInsertsIt) {
    Config config;
    EXPECT_EQ(Read(config, "pid=12\n"), 0);
    EXPECT_EQ(config["pid"], "12");
    EXPECT_EQ(config.get_int("Pid"), 0);
    EXPECT_EQ(config["PID"], "");
    EXPECT_EQ(Entries(config.begin(), config.end()), (Entries{{"PID", ""}, {"Pid", ""}, {"pid", "12"}}));
}

}  // namespace
