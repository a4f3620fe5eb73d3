#include "text/string-helper.h"

#include <QString>

#include "test-folder.h"

using kelvanequay::utils::StringHelper;
using Items = std::list<std::string>;

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
        const QString composed = text.normalized(QString::NormalizationForm_C);
        const QString decomposed = text.normalized(QString::NormalizationForm_D);
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFC), composed.toStdString());
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFD), decomposed.toStdString());
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
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        const std::string warnings = StandardErrorOf([&] {
            EXPECT_EQ("", StringHelper::Normalize(text, StringHelper::NFC));
            EXPECT_EQ(-1, StringHelper::ConvertStringToWstring(text, wide));
        });
        EXPECT_EQ(0U, warnings.find("Warning: u_strFromUTF8: error code 10 at line ")) << warnings;
        EXPECT_EQ(2, std::count(warnings.begin(), warnings.end(), '\n')) << "one line each: " << warnings;
        EXPECT_FALSE(StringHelper::IsValid(text));
    }
    const std::u16string half(1, char16_t{0xD800});
    const std::string warning =
        StandardErrorOf([&] { EXPECT_EQ(-1, StringHelper::ConvertWstringToString(half, narrow)); });
    EXPECT_EQ(0U, warning.find("Warning: u_strToUTF8: error code 10 at line "));
    EXPECT_EQ(std::tuple(wide, narrow), std::tuple(u"old", "old"));
}

TEST_F(StringHelperTest, TrimJoinSplitAndFormat) {
    for (const auto& [text, trimmed] : std::map<std::string, const char*>{
             {"abc\r\n ", "abc"}, {"  a b ", "  a b"}, {"abc", "abc"}, {"\n \n", "\n \n"}}) {
        std::string copy = text;
        StringHelper::Rtrim(copy, " \n\r");
        EXPECT_EQ(trimmed, copy) << text;
    }
    for (const std::string text : {"", "a", ",a", "a,,b", "a,", ","}) {
        Items items = {"kept"};
        StringHelper::Split(items, text, ',');
        // Nothing follows a final separator.
        const std::string rest = text.empty() || text.back() != ',' ? text : text.substr(0, text.size() - 1);
        EXPECT_EQ("kept" + std::string(text.empty() ? "" : ",") + rest, StringHelper::Join(items, ',')) << text;
    }
    EXPECT_EQ("100%", StringHelper::GetFormatTime("100%%"));
    EXPECT_EQ(std::string(63, 'x'), StringHelper::GetFormatTime(std::string(63, 'x').c_str()));
    EXPECT_EQ("", StringHelper::GetFormatTime(std::string(64, 'x').c_str()));
}

}  // namespace
