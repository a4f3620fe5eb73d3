#include "text/string-helper.h"

#include <QString>

#include "test-folder.h"

using kelvanequay::utils::StringHelper;

namespace {

using StringHelperTest = FolderTest;

// Qt has a normalisation and conversions of its own.
TEST_F(StringHelperTest, NormalizesAndConvertsAsQtDoes) {
    // Marks in and out of their order, Hangul, which is computed, ligatures, and letters beyond 16 bits.
    const std::u32string points =
        U"aA/~e\u00E9\u0301\u0323\u0307\u1EA1\u00C5\u030A\u1112\u1161\u11AB\uD55C\uFB01\U0001D15E";
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        std::u32string chosen(random() % 8, U' ');
        std::generate(chosen.begin(), chosen.end(), [&] { return points[random() % points.size()]; });
        const QString text = QString::fromStdU32String(chosen);
        const std::string narrow = text.toStdString();
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFC),
                  text.normalized(QString::NormalizationForm_C).toStdString());
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFD),
                  text.normalized(QString::NormalizationForm_D).toStdString());
        std::u16string wide;
        std::string back;
        EXPECT_EQ(0, StringHelper::ConvertStringToWstring(narrow, wide));
        EXPECT_EQ(0, StringHelper::ConvertWstringToString(wide, back));
        EXPECT_EQ(std::tuple(wide, back), std::tuple(text.toStdU16String(), narrow));
        EXPECT_TRUE(StringHelper::IsValid(narrow));
    }
    EXPECT_EQ("cut", StringHelper::Normalize(std::string("cut\0off", 7), StringHelper::NFC));
}

TEST_F(StringHelperTest, MalformedTextWarnsOnce) {
    std::u16string wide = u"old";
    std::string narrow = "old";
    const auto warning = [](const std::function<int()>& convert) {
        return StandardErrorOf([&] { EXPECT_EQ(-1, convert()); });
    };
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        const std::string told = warning([&] { return StringHelper::ConvertStringToWstring(text, wide); });
        EXPECT_EQ(0U, told.find("Warning: u_strFromUTF8: error code 10 at line "));
        EXPECT_EQ(told, warning([&] { return -1 - StringHelper::Normalize(text, StringHelper::NFC).compare(""); }));
        EXPECT_FALSE(StringHelper::IsValid(text));
    }
    const std::u16string half(1, char16_t{0xD800});
    const std::string told = warning([&] { return StringHelper::ConvertWstringToString(half, narrow); });
    EXPECT_EQ(0U, told.find("Warning: u_strToUTF8: error code 10 at line "));
    EXPECT_EQ(std::tuple(wide, narrow), std::tuple(u"old", "old"));
}

TEST_F(StringHelperTest, TrimJoinSplitAndFormat) {
    for (const auto& [text, trimmed] : std::map<std::string, const char*>{
             {"abc\r\n ", "abc"}, {"  a b ", "  a b"}, {"abc", "abc"}, {"\n \n", "\n \n"}}) {
        std::string copy = text;
        StringHelper::Rtrim(copy, " \n\r");
        EXPECT_EQ(trimmed, copy);
    }
    std::string joined;
    for (const std::string text : {"", "a", ",a", "a,,b", "a,", ","}) {
        std::list<std::string> items = {"kept"};
        StringHelper::Split(items, text, ',');
        joined += StringHelper::Join(items, ';') + " ";
    }
    EXPECT_EQ(joined, "kept kept;a kept;;a kept;a;;b kept;a kept; ") << "nothing follows a final separator";
    const std::string longest(63, 'x');
    EXPECT_EQ("100%" + longest, StringHelper::GetFormatTime("100%%") + StringHelper::GetFormatTime(longest.c_str()));
    EXPECT_EQ("", StringHelper::GetFormatTime((longest + "x").c_str()));
}

}  // namespace
