#include <gtest/gtest.h>

#include <QGuiApplication>

#include "pier/dpi-info.h"
#include "pier/kelvane-locale.h"
#include "pier/path-manager.h"

namespace {

TEST(KelvaneLocale, CodeOfALanguageTag) {
    const std::pair<const char*, const char*> tags[] = {
        // clang-format off
        // Chinese: the script counts before the region, the region before nothing.
        {"zh", "chs"}, {"zh-CN", "chs"}, {"zh-SG", "chs"}, {"zh-MY", "chs"}, {"zh-Hans", "chs"}, {"zh-Hans-CN", "chs"},
        {"zh-Hans-HK", "chs"}, {"zh-Hans-TW", "chs"}, {"zh-Hant", "cht"}, {"zh-Hant-TW", "cht"}, {"zh-Hant-HK", "cht"},
        {"zh-Hant-MO", "cht"}, {"zh-Hant-CN", "cht"}, {"zh-TW", "cht"}, {"zh-HK", "cht"}, {"zh-MO", "cht"},
        {"zh_TW.UTF-8", "cht"}, {"zh_CN.GB18030", "chs"}, {"ZH-HANT", "cht"}, {"zh_HK.big5hkscs", "cht"},
        // Portuguese: Portugal's own, Brazil's for the rest.
        {"pt", "ptb"}, {"pt-BR", "ptb"}, {"pt_BR.UTF-8", "ptb"}, {"pt-PT", "ptg"}, {"pt_PT@euro", "ptg"},
        {"pt-Latn-PT", "ptg"}, {"pt-AO", "ptb"}, {"pt-MZ", "ptb"},
        // Norwegian in both its forms and without one.
        {"no", "nor"}, {"nb", "nor"}, {"nn", "nor"}, {"nb-NO", "nor"}, {"nn-NO", "nor"}, {"nb_NO.UTF-8", "nor"},
        // The rest by the language alone.
        {"cs", "csy"}, {"cs-CZ", "csy"}, {"da", "dan"}, {"da_DK.UTF-8", "dan"}, {"de", "ger"}, {"de-AT", "ger"},
        {"de-CH", "ger"}, {"de-Latn-DE", "ger"}, {"de_DE@euro", "ger"}, {"en", "enu"}, {"en-US", "enu"}, {"en-GB", "enu"},
        {"en-AU", "enu"}, {"es", "spn"}, {"es-MX", "spn"}, {"es-419", "spn"}, {"fr", "fre"}, {"fr-CA", "fre"},
        {"fr_BE.ISO-8859-15@euro", "fre"}, {"hu", "hun"}, {"hu-HU", "hun"}, {"it", "ita"}, {"it-CH", "ita"},
        {"ja", "jpn"}, {"ja-JP", "jpn"}, {"ja-Jpan-JP", "jpn"}, {"ko", "krn"}, {"ko-KR", "krn"}, {"ko-Kore-KR", "krn"},
        {"nl", "nld"}, {"nl-BE", "nld"}, {"pl", "plk"}, {"pl-PL", "plk"}, {"ru", "rus"}, {"ru-UA", "rus"}, {"sv", "sve"},
        {"sv-FI", "sve"}, {"th", "tha"}, {"th-TH", "tha"}, {"tr", "trk"}, {"tr-CY", "trk"},
        // No catalog: English.
        {"ar", "enu"}, {"he-IL", "enu"}, {"uk-UA", "enu"}, {"C", "enu"}, {"POSIX", "enu"}, {"", "enu"}, {"xx", "enu"},
        {"dej", "enu"}, {"-", "enu"}, {"zhx", "enu"},
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

TEST(UIPathManager, KeepsWhatWasSetAndGivesNothingElse) {
    UIPathManager* paths = UIPathManager::getInstance();
    EXPECT_EQ(paths, UIPathManager::getInstance());
    paths->setPath(QStringLiteral("key"), QStringLiteral("/a/../b"));
    EXPECT_EQ(paths->getPath(QStringLiteral("key")), QStringLiteral("/a/../b"));
    EXPECT_TRUE(paths->getPath(QStringLiteral("KEY")).isEmpty());
    EXPECT_TRUE(paths->getPath(QStringLiteral("KEY")).isEmpty()) << "asking must not make an entry";
}

TEST(DPIinfo, ScalesLengthsInPixelsOnly) {
    const auto scaled = [](const char* sheet) {
        return DPIinfo::getInstance()->getScaledStyleSheet(QString::fromLatin1(sheet)).toStdString();
    };
    EXPECT_EQ(DPIinfo::getInstance()->getDPI(), 1.0) << "without a screen";
    int argc = 1;
    char name[] = "pier-test";
    char* argv[] = {name, nullptr};
    qputenv("QT_FONT_DPI", "192");
    const QGuiApplication application(argc, argv);
    const double scale = DPIinfo::getInstance()->getDPI();
    EXPECT_EQ(scale * application.devicePixelRatio(), 2.0);
    const auto pixels = [scale](double length) { return std::to_string(qRound(length * scale)) + "px"; };
    EXPECT_EQ(scaled("margin: 10px 7px; font: 12pt"), "margin: " + pixels(10) + " " + pixels(7) + "; font: 12pt");
    EXPECT_EQ(scaled("border:2.5px"), "border:" + pixels(2.5));
    EXPECT_EQ(scaled("width: 100%; color: #10px0; x10px"), "width: 100%; color: #10px0; x10px");
}

}  // namespace

// Its own main: the test makes the application.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
