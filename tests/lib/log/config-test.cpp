#include "log/config.h"

#include <climits>
#include <random>

#include "test-folder.h"

namespace {

using Entries = Config::Entries;

class ConfigTest : public FolderTest {
protected:
    // Reads a file with this text into `config`.
    int Read(Config& config, const std::string& text) const {
        Write(At("file"), text);
        return config.read(At("file"));
    }
};

// What is printed in any of the ways that the syntax has is read as it was.
TEST_F(ConfigTest, ReadsWhatIsPrinted) {
    std::mt19937 random(1);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const std::string keys = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_.";
    const std::string blanks = "\t\v\f\r ";
    const auto blank = [&] { return below(2) == 0 ? "" : std::string(1, blanks[below(blanks.size())]); };
    for (int round = 0; round < 2000; ++round) {
        Entries expected;
        std::string text;
        for (std::size_t line = below(5); line > 0; --line) {
            std::string key;
            for (std::size_t size = below(4); size > 0; --size) {
                key += keys[below(keys.size())];
            }
            const char quote = "\"' "[below(3)];
            std::string value;
            // Bare, a value has a character at least, and neither blanks nor quotes or comments in front.
            for (std::size_t size = below(6) + (quote == ' ' ? 1 : 0); size > 0; --size) {
                const char byte = static_cast<char>(32 + below(224));
                const bool isBad = byte == 127 || byte == quote || (value.empty() && quote == ' ' && byte < 40);
                value += isBad ? '%' : byte;
            }
            const std::string mark = quote == ' ' ? "" : std::string(1, quote);
            text += blank() + key + blank() + "=" + blank() + mark + value + mark + blank();
            text += below(3) == 0 ? (mark.empty() ? " # comment\n" : "#comment\n") : "\n";
            expected[key] = value;
            text += below(4) == 0 ? blank() + "# comment = x\n" + blank() + "\n" : "";
        }
        Config config;
        ASSERT_EQ(Read(config, text), 0) << text;
        ASSERT_EQ(Entries(config.begin(), config.end()), expected) << text;
    }
}

TEST_F(ConfigTest, OddLines) {
    constexpr int kEntry = Config::PARSE_ENTRY;
    constexpr int kNothing = Config::PARSE_NOTHING;
    constexpr int kMalformed = Config::PARSE_MALFORMED;
    const struct {
        const char* text;
        int result;
        const char* key;
        const char* value;
    } lines[] = {
        {"key=a", kEntry, "key", "a"},
        {"key=a#b\n", kEntry, "key", "a#b"},
        {"key=#x\n", kEntry, "key", "#x"},
        {"key=a=b\n", kEntry, "key", "a=b"},
        {"key=a\"b'c\n", kEntry, "key", "a\"b'c"},
        {"key=\n=a\n", kEntry, "key", "=a"},  // a line feed is a blank like any other
        {"key=''", kEntry, "key", ""},
        {"=a\n", kEntry, "", "a"},
        {"", kNothing, "", ""},
        {"\n", kNothing, "", ""},
        {"   # comment\n", kNothing, "", ""},
        {"#", kNothing, "", ""},
        {"key#anything\n", kNothing, "", ""},
        {"  key", kNothing, "", ""},
        {"key\n", kMalformed, "", ""},
        {"key ", kMalformed, "", ""},
        {"key #anything\n", kMalformed, "", ""},
        {"key value\n", kMalformed, "", ""},
        {"key!=1\n", kMalformed, "", ""},
        {"k\xC3\xBCy=1\n", kMalformed, "", ""},
        {"key=\n", kMalformed, "", ""},
        {"key=", kMalformed, "", ""},
        {"key=   # comment\n", kMalformed, "", ""},
        {"key=a b\n", kMalformed, "", ""},
        {"key=a\x7F\n", kMalformed, "", ""},
        {"key=\x1F\n", kMalformed, "", ""},
        {"key=\"a\" b\n", kMalformed, "", ""},
        {"key=\"a\n", kMalformed, "", ""},
        {"key=\"a'\n", kMalformed, "", ""},
        {"key=\"a\tb\"\n", kMalformed, "", ""},
        {"key=\"a\"\"\n", kMalformed, "", ""},
        {"\"key\"=a\n", kMalformed, "", ""},
    };
    for (const auto& line : lines) {
        SCOPED_TRACE(line.text);
        std::string key;
        std::string value;
        std::string buffer = line.text;
        EXPECT_EQ(Config().parse(buffer.data(), key, value), line.result);
        EXPECT_EQ(key, line.key);
        EXPECT_EQ(value, line.value);
    }
    Config config;
    config.keep_quotes = true;
    EXPECT_EQ(Read(config, "a=\"a b\"\nb='a'\nc=a\n"), 0);
    EXPECT_EQ(Entries(config.begin(), config.end()), (Entries{{"a", "\"a b\""}, {"b", "'a'"}, {"c", "a"}}));
}

TEST_F(ConfigTest, WholeFiles) {
    const std::string value(8189, 'v');  // with "k=" one piece
    const struct {
        std::string text;
        int result;
        Entries entries;
    } files[] = {
        {"a=1\nkey", 0, {{"a", "1"}}},
        {"a=1\nbad\n", -1, {}},
        {"bad\na=1\n", -1, {}},
        {"k=" + value + "\nz=1\n", 0, {{"k", value}, {"z", "1"}}},  // the second piece is a line feed
        {"k=" + value + "z=1\n", 0, {{"k", value}, {"z", "1"}}},
        {"k=" + value + "z\n", -1, {}},
        {"k=\"" + value + "\"\n", -1, {}},
    };
    for (const auto& file : files) {
        Config config;
        EXPECT_EQ(Read(config, file.text), file.result);
        EXPECT_EQ(Entries(config.begin(), config.end()), file.entries);
    }
    // A second file adds, one that can't be read changes nothing, a bad one clears.
    Config config;
    EXPECT_EQ(Read(config, "a=1\nb=1\n"), 0);
    EXPECT_EQ(Read(config, "b=2\nc=2\n"), 0);
    for (const char* path : {"", "/no/such/file", "/dev/zero"}) {
        EXPECT_EQ(config.read(path), -1);
    }
    EXPECT_EQ(Entries(config.begin(), config.end()), (Entries{{"a", "1"}, {"b", "2"}, {"c", "2"}}));
    EXPECT_EQ(Read(config, "d=4\nbad\n"), -1);
    EXPECT_EQ(config.begin(), config.end());
}

TEST_F(ConfigTest, NumbersAtTheFrontOfAValue) {
    const std::pair<const char*, int> values[] = {{"-3", -3},
                                                  {"+8", 8},
                                                  {"12abc", 12},
                                                  {"abc", 0},
                                                  {"0x10", 0},
                                                  {"' 5'", 5},
                                                  {"1,000", 1},
                                                  {"2147483648", INT_MAX},
                                                  {"-2147483649", INT_MIN}};
    Config config;
    for (const auto& [value, number] : values) {
        EXPECT_EQ(Read(config, std::string("key=") + value + "\n"), 0);
        EXPECT_EQ(config.get_int("key"), number) << value;
    }
    // To look a missing key up inserts it.
    EXPECT_EQ(config.get_int("Key"), 0);
    EXPECT_EQ(config["KEY"], "");
    EXPECT_EQ(std::distance(config.begin(), config.end()), 3);
}

}  // namespace
