#include "text/string-helper.h"

#include <gtest/gtest.h>

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

constexpr auto kNoForm = static_cast<StringHelper::NormalizationForm>(7);

TEST(StringHelperTest, Normalize) {
    const struct {
        const char* text;
        const char* composed;
        const char* decomposed;
    } cases[] = {
        {"", "", ""},
        {"plain/ASCII ~", "plain/ASCII ~", "plain/ASCII ~"},
        {"e\u0301", "\u00E9", "e\u0301"},
        {"\u00E9", "\u00E9", "e\u0301"},
        {"a\u0323\u0307", "\u1EA1\u0307", "a\u0323\u0307"},  // marks in their canonical order
        {"a\u0307\u0323", "\u1EA1\u0307", "a\u0323\u0307"},  // and out of it
        {"\uD55C", "\uD55C", "\u1112\u1161\u11AB"},          // Hangul is computed, not looked up
        {"\uFB01", "\uFB01", "\uFB01"},                      // a ligature is no canonical matter
        {"\U0001F600/\U0001D15E", "\U0001F600/\U0001D157\U0001D165", "\U0001F600/\U0001D157\U0001D165"},
    };
    for (const auto& one : cases) {
        const std::string warnings = WarningsOf([&] {
            EXPECT_EQ(one.composed, StringHelper::Normalize(one.text, StringHelper::NFC)) << one.text;
            EXPECT_EQ(one.composed, StringHelper::Normalize(one.text, kNoForm)) << one.text;
            EXPECT_EQ(one.decomposed, StringHelper::Normalize(one.text, StringHelper::NFD)) << one.text;
        });
        EXPECT_EQ("", warnings) << one.text;
    }
    EXPECT_EQ("cut", StringHelper::Normalize(std::string("cut\0off", 7), StringHelper::NFC));
}

TEST(StringHelperTest, MalformedTextWarnsOnce) {
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        std::string normalized = "old";
        std::u16string wide = u"old";
        const std::string warnings = WarningsOf([&] { normalized = StringHelper::Normalize(text, StringHelper::NFC); });
        EXPECT_EQ("", normalized);
        EXPECT_EQ(0U, warnings.find("Warning: u_strFromUTF8: error code 10 at line ")) << warnings;
        EXPECT_EQ(warnings.size() - 1, warnings.find('\n')) << "one line: " << warnings;
        EXPECT_FALSE(StringHelper::IsValid(text));
        WarningsOf([&] { EXPECT_EQ(-1, StringHelper::ConvertStringToWstring(text, wide)); });
        EXPECT_EQ(u"old", wide);
    }
    for (const char* text : {"", "ASCII", "\u00E9\U0001F600"}) {
        EXPECT_TRUE(StringHelper::IsValid(text)) << text;
    }
}

TEST(StringHelperTest, Conversions) {
    const struct {
        std::string narrow;
        std::u16string wide;
    } cases[] = {{"", u""}, {"a", u"a"}, {"\u20AC\U0001F600", u"\u20AC\U0001F600"}};
    for (const auto& one : cases) {
        std::u16string wide = u"old";
        std::string narrow = "old";
        EXPECT_EQ(0, StringHelper::ConvertStringToWstring(one.narrow, wide));
        EXPECT_EQ(one.wide, wide);
        EXPECT_EQ(0, StringHelper::ConvertWstringToString(one.wide, narrow));
        EXPECT_EQ(one.narrow, narrow);
    }
    std::string narrow = "old";
    const std::string warnings = WarningsOf(
        [&] { EXPECT_EQ(-1, StringHelper::ConvertWstringToString(std::u16string(1, char16_t{0xD800}), narrow)); });
    EXPECT_EQ(0U, warnings.find("Warning: u_strToUTF8: error code 10 at line "));
    EXPECT_EQ("old", narrow);
    EXPECT_EQ("\xFF", StringHelper::FromPlatformDependString(StringHelper::ToPlatformDependString("\xFF")));
}

TEST(StringHelperTest, Rtrim) {
    const struct {
        const char* text;
        const char* chars;
        const char* trimmed;
    } cases[] = {{"abc  ", " ", "abc"}, {"  a b", " ", "  a b"}, {"abc\r\n ", " \n\r", "abc"},
                 {"   ", " ", "   "},   {"", " ", ""},           {"abc ", "", "abc "}};
    for (const auto& one : cases) {
        std::string text = one.text;
        StringHelper::Rtrim(text, one.chars);
        EXPECT_EQ(one.trimmed, text) << one.text;
    }
}

TEST(StringHelperTest, JoinAndSplit) {
    const struct {
        std::string text;
        Items items;
        std::string joined;
    } cases[] = {{"", {}, ""},       {"a", {"a"}, "a"}, {"a,,b", {"a", "", "b"}, "a,,b"}, {",a", {"", "a"}, ",a"},
                 {"a,", {"a"}, "a"},  // nothing follows a final separator
                 {",", {""}, ""}};
    for (const auto& one : cases) {
        Items items = {"kept"};
        StringHelper::Split(items, one.text, ',');
        ASSERT_EQ("kept", items.front());
        items.pop_front();
        EXPECT_EQ(one.items, items) << one.text;
        EXPECT_EQ(one.joined, StringHelper::Join(items, ',')) << one.text;
    }
}

TEST(StringHelperTest, FormatTime) {
    EXPECT_EQ("100%", StringHelper::GetFormatTime("100%%"));
    EXPECT_EQ(std::string(63, 'x'), StringHelper::GetFormatTime(std::string(63, 'x').c_str()));
    EXPECT_EQ("", StringHelper::GetFormatTime(std::string(64, 'x').c_str()));
}

}  // namespace
