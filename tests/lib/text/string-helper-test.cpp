#include "text/string-helper.h"

#include <QString>
#include <regex>

#include "test-folder.h"

using kelvanequay::utils::StringHelper;

namespace {

using StringHelperTest = FolderTest;

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
    const std::u16string half(1, char16_t{0xD800});
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_FALSE(StringHelper::IsValid(text));
        const std::string told = StandardErrorOf([&] {
            EXPECT_EQ(-1, StringHelper::ConvertStringToWstring(text, wide));
            EXPECT_EQ("", StringHelper::Normalize(text, StringHelper::NFC));
            EXPECT_EQ(-1, StringHelper::ConvertWstringToString(half, narrow));
        });
        const std::regex form("((^|\n)Warning: u_str(From|To)UTF8: error code 10 at line \\d+){3}\n");
        EXPECT_TRUE(std::regex_match(told, form)) << told;
    }
    EXPECT_EQ(std::tuple(wide, narrow), std::tuple(u"old", "old"));
}

TEST_F(StringHelperTest, TrimSplitJoinAndFormat) {
    std::string joined;
    for (std::string text : {"", "a", ",a", "a,,b", "a,", ",", "a \r,\n ", "\n \n"}) {
        StringHelper::Rtrim(text, " \n\r");
        std::list<std::string> items = {"kept"};
        StringHelper::Split(items, text, ',');
        joined += StringHelper::Join(items, ';') + " ";
    }
    EXPECT_EQ(joined, "kept kept;a kept;;a kept;a;;b kept;a kept; kept;a \r kept;\n \n ") << "no item behind the end";
    const std::string longest(63, 'x');
    EXPECT_EQ("100%" + longest, StringHelper::GetFormatTime("100%%") + StringHelper::GetFormatTime(longest.c_str()));
    EXPECT_EQ("", StringHelper::GetFormatTime((longest + "x").c_str()));
}

}  // namespace
