#include "text/string-helper.h"

#include <gtest/gtest.h>

#include <QString>
#include <random>

using kelvanequay::utils::StringHelper;
using Items = std::list<std::string>;

namespace {

// What `action` writes to the standard error stream.
template <typename Action>
std::string WarningsOf(Action action) {
    ::testing::internal::CaptureStderr();
    action();
    return ::testing::internal::GetCapturedStderr();
}

// Qt has a normalisation and conversions of its own.
TEST(StringHelperTest, NormalizesAndConvertsAsQtDoes) {
    // Marks in and out of their order, Hangul, which is computed, ligatures, and letters beyond 16 bits.
    const QString points =
        QString::fromUtf8("aA/~e\u00E9\u0301\u0323\u0307\u1EA1\u00C5\u030A\u1112\u1161\u11AB\uD55C\uFB01\u0153");
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (auto size = random() % 8; size > 0; --size) {
            text += random() % 9 == 0
                        ? QString::fromUtf8("\U0001D15E")
                        : QString(points[static_cast<int>(random() % static_cast<unsigned>(points.size()))]);
        }
        const std::string narrow = text.toStdString();
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFC),
                  text.normalized(QString::NormalizationForm_C).toStdString());
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFD),
                  text.normalized(QString::NormalizationForm_D).toStdString());
        std::u16string wide;
        std::string back = "old";
        EXPECT_EQ(0, StringHelper::ConvertStringToWstring(narrow, wide));
        EXPECT_EQ(wide, text.toStdU16String());
        EXPECT_EQ(0, StringHelper::ConvertWstringToString(wide, back));
        EXPECT_EQ(back, narrow);
        EXPECT_TRUE(StringHelper::IsValid(narrow));
    }
    EXPECT_EQ("\u00E9", StringHelper::Normalize("e\u0301", static_cast<StringHelper::NormalizationForm>(7)));
    EXPECT_EQ("cut", StringHelper::Normalize(std::string("cut\0off", 7), StringHelper::NFC));
}

TEST(StringHelperTest, MalformedTextWarnsOnce) {
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        std::u16string wide = u"old";
        const std::string warnings =
            WarningsOf([&] { EXPECT_EQ("", StringHelper::Normalize(text, StringHelper::NFC)); });
        EXPECT_EQ(0U, warnings.find("Warning: u_strFromUTF8: error code 10 at line ")) << warnings;
        EXPECT_EQ(warnings.size() - 1, warnings.find('\n')) << "one line: " << warnings;
        EXPECT_FALSE(StringHelper::IsValid(text));
        EXPECT_NE("", WarningsOf([&] { EXPECT_EQ(-1, StringHelper::ConvertStringToWstring(text, wide)); }));
        EXPECT_EQ(u"old", wide);
    }
    std::string narrow = "old";
    const std::string warnings = WarningsOf(
        [&] { EXPECT_EQ(-1, StringHelper::ConvertWstringToString(std::u16string(1, char16_t{0xD800}), narrow)); });
    EXPECT_EQ(0U, warnings.find("Warning: u_strToUTF8: error code 10 at line "));
    EXPECT_EQ("old", narrow);
    EXPECT_EQ("\xFF", StringHelper::FromPlatformDependString(StringHelper::ToPlatformDependString("\xFF")));
}

TEST(StringHelperTest, TrimJoinSplitAndFormat) {
    const std::tuple<std::string, const char*, const char*> trims[] = {{"abc  ", " ", "abc"},
                                                                       {"  a b", " ", "  a b"},
                                                                       {"abc\r\n ", " \n\r", "abc"},
                                                                       {"   ", " ", "   "},
                                                                       {"abc ", "", "abc "}};
    for (const auto& [text, chars, trimmed] : trims) {
        std::string copy = text;
        StringHelper::Rtrim(copy, chars);
        EXPECT_EQ(trimmed, copy) << text;
    }
    // Nothing follows a final separator.
    const std::tuple<const char*, Items, const char*> lists[] = {
        {"", {}, ""},       {"a", {"a"}, "a"}, {",a", {"", "a"}, ",a"}, {"a,,b", {"a", "", "b"}, "a,,b"},
        {"a,", {"a"}, "a"}, {",", {""}, ""}};
    for (const auto& [text, items, joined] : lists) {
        Items split = {"kept"};
        StringHelper::Split(split, text, ',');
        EXPECT_EQ("kept", split.front());
        split.pop_front();
        EXPECT_EQ(items, split) << text;
        EXPECT_EQ(joined, StringHelper::Join(split, ',')) << text;
    }
    EXPECT_EQ("100%", StringHelper::GetFormatTime("100%%"));
    EXPECT_EQ(std::string(63, 'x'), StringHelper::GetFormatTime(std::string(63, 'x').c_str()));
    EXPECT_EQ("", StringHelper::GetFormatTime(std::string(64, 'x').c_str()));
}

}  // namespace
