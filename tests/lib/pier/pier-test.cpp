#include <gtest/gtest.h>

#include "pier/dpi-info.h"
#include "pier/kelvane-locale.h"

namespace {

TEST(KelvaneLocale, CodeOfALanguageTag) {
    const std::pair<const char*, const char*> tags[] = {
        // clang-format off
        // Chinese: the script counts before the region, the region before nothing.
        {"zh", "chs"}, {"zh-SG", "chs"}, {"zh-Hans-TW", "chs"}, {"zh-Hant", "cht"}, {"zh-Hant-CN", "cht"}, {"zh-TW", "cht"},
        {"zh-HK", "cht"}, {"zh-MO", "cht"}, {"zh_TW.UTF-8", "cht"}, {"zh_CN.GB18030", "chs"}, {"ZH-HANT", "cht"},
        // Portuguese: Portugal's own, Brazil's for the rest.
        {"pt", "ptb"}, {"pt_BR.UTF-8", "ptb"}, {"pt_PT@euro", "ptg"}, {"pt-Latn-PT", "ptg"}, {"pt-AO", "ptb"},
        // The rest by the language alone; Norwegian in both its forms and without one.
        {"no", "nor"}, {"nb", "nor"}, {"nn-NO", "nor"}, {"cs-CZ", "csy"}, {"da_DK.UTF-8", "dan"}, {"de-Latn-DE", "ger"},
        {"en-GB", "enu"}, {"es-419", "spn"}, {"fr_BE.ISO-8859-15@euro", "fre"}, {"hu", "hun"}, {"it-CH", "ita"},
        {"ja-Jpan-JP", "jpn"}, {"ko-KR", "krn"}, {"nl-BE", "nld"}, {"pl", "plk"}, {"ru-UA", "rus"}, {"sv-FI", "sve"},
        {"th", "tha"}, {"tr-CY", "trk"},
        // No catalog: English.
        {"ar", "enu"}, {"uk-UA", "enu"}, {"C", "enu"}, {"", "enu"}, {"dej", "enu"}, {"-", "enu"}, {"zhx", "enu"},
        // clang-format on
    };
    for (const auto& [tag, code] : tags) {
        EXPECT_EQ(KelvaneLocale::LanguageOf({QString::fromLatin1(tag)}).toStdString(), code) << tag;
    }
    // Of several the first with a catalog wins.
    const auto of = [](const QString& list) {
        return KelvaneLocale::LanguageOf(list.split(QLatin1Char(' '))).toStdString();
    };
    EXPECT_EQ(of(QStringLiteral("uk-UA ru-UA en-US")), "rus");
    EXPECT_EQ(of(QStringLiteral("en-US de-DE")), "enu");
    EXPECT_EQ(KelvaneLocale::LanguageOf({}).toStdString(), "enu");
}

// Without a screen the scale is 1; other scales show in the dialog.
TEST(DPIinfo, ScalesLengthsInPixelsOnly) {
    const auto scaled = [](const char* sheet) {
        return DPIinfo::getInstance()->getScaledStyleSheet(QString::fromLatin1(sheet)).toStdString();
    };
    EXPECT_EQ(DPIinfo::getInstance()->getDPI(), 1.0);
    EXPECT_EQ(scaled("margin: 10.4px 7.5px; font: 12.5pt"), "margin: 10px 8px; font: 12.5pt");
    EXPECT_EQ(scaled("width: 9.5%; color: #10px0; x1.5px"), "width: 9.5%; color: #10px0; x1.5px");
}

}  // namespace
