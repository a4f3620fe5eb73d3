#include "log/config.h"

#include <climits>

#include "test-folder.h"

namespace {

class ConfigTest : public FolderTest {
protected:
    // What `config` holds after it has read a file with this text: "key=value;" each, and "!" in front of a failure.
    std::string Held(const std::string& text, Config&& config = Config()) const {
        Write(At("file"), text);
        std::string held = config.read(At("file")) == 0 ? "" : "!";
        for (const auto& [key, value] : config) {
            held += key + "=" + value + ";";
        }
        return held;
    }
};

// What is printed in any of the ways that the syntax has is read as it was.
TEST_F(ConfigTest, ReadsWhatIsPrinted) {
    std::mt19937 random(1);
    const auto pick = [&](const std::string& from) { return from[random() % from.size()]; };
    const auto blank = [&] { return std::string(random() % 2, pick("\t\v\f\r ")); };
    for (int round = 0; round < 500; ++round) {
        std::string text;
        std::string expected;
        for (char line = '0'; line < '5'; ++line) {
            const std::string key =
                line +
                std::string(random() % 3, pick("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_."));
            const char quote = pick("\"' ");
            std::string value;
            // A bare value has a character at least, and none in front that means something there.
            for (auto size = random() % 6 + (quote == ' ' ? 1 : 0); size > 0; --size) {
                const char byte = static_cast<char>(32 + random() % 224);
                const bool isBad = byte == 127 || byte == quote || (value.empty() && quote == ' ' && byte < 40);
                value += isBad ? '%' : byte;
            }
            const std::string mark(quote == ' ' ? 0 : 1, quote);
            text += blank() + key + blank() + "=" + blank() + mark + value + mark + blank();
            text +=
                pick("yn") == 'y' ? (mark.empty() ? " # comment\n" : "#comment\n") : "\n" + blank() + "# comment=x\n";
            expected += key + "=" + value + ";";
        }
        ASSERT_EQ(Held(text), expected) << text;
    }
}

TEST_F(ConfigTest, OddFiles) {
    const std::string piece(8189, 'v');  // with "k=" one piece of a line
    for (const std::string value : {"a#b", "#x", "a=b", "a\"b'c"}) {
        EXPECT_EQ(Held("key=" + value + "\nlast=1"), "key=" + value + ";last=1;");
    }
    for (const char* text : {"", "\n   # comment\n#", "key#anything\n", "  key"}) {
        EXPECT_EQ(Held(text), "") << text;
    }
    for (const char* text : {"key\n", "key ", "key value\n", "key!=1\n", "k\xC3\xBCy=1\n", "key=\n",
                             "key=", "key=  # c\n", "key=a b\n", "key=a\x7F\n", "key=\x1F\n", "key=\"a\" b\n",
                             "key=\"a\n", "key=\"a'\n", "key=\"a\tb\"\n", "\"key\"=a\n", "a=1\nbad\n", "bad\na=1\n"}) {
        EXPECT_EQ(Held(text), "!") << text;
    }
    EXPECT_EQ(Held("=a\nB=2\n=3\n"), "=3;B=2;") << "the later one stands";
    EXPECT_EQ(Held("k=" + piece + "\nz=1\n") + Held("k=" + piece + "z=1\n"),
              "k=" + piece + ";z=1;k=" + piece + ";z=1;");
    EXPECT_EQ(Held("k=" + piece + "z\n") + Held("k=\"" + piece + "\"\n"), "!!");
    // Quotes stay on request. A file that can't be read changes nothing, a second one adds, a bad one clears.
    Config config;
    config.keep_quotes = true;
    EXPECT_EQ(Held("a=\"a b\"\nb='a'\nc=a\n", std::move(config)), "a=\"a b\";b='a';c=a;");
    EXPECT_EQ(config.read("") + config.read("/no/such/file") + config.read("/dev/zero"), -3);
    EXPECT_EQ(Held("b=2\n", std::move(config)), "a=\"a b\";b=2;c=a;");
    EXPECT_EQ(Held("d=4\nbad\n", std::move(config)), "!");
    // Numbers at the front of a value; to look a missing key up inserts it.
    const std::pair<const char*, int> numbers[] = {{"-3", -3},
                                                   {"+8", 8},
                                                   {"12abc", 12},
                                                   {"abc", 0},
                                                   {"0x10", 0},
                                                   {" 5", 5},
                                                   {"1,000", 1},
                                                   {"2147483648", INT_MAX},
                                                   {"-2147483649", INT_MIN}};
    for (const auto& [value, number] : numbers) {
        config["key"] = value;
        EXPECT_EQ(config.get_int("key"), number) << value;
    }
    EXPECT_EQ(config.get_int("Key"), 0);
    EXPECT_EQ(std::distance(config.begin(), config.end()), 2);
}

}  // namespace
