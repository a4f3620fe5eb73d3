#include <gtest/gtest.h>

#include "pier/dpi-info.h"
#include "pier/kelvane-locale.h"

TEST(KelvaneLocale, CodeOfLanguageTags) {
    const QString tags = QStringLiteral(
        // Chinese: the script counts before the region, the region before nothing.
        "zh=chs zh-SG=chs zh-Hans-TW=chs ZH-HANT=cht zh-Hant-CN=cht zh-HK=cht zh-MO=cht zh_TW.UTF-8=cht "
        // Portuguese: Portugal's own, Brazil's for the rest. Norwegian in both its forms and without one.
        "pt=ptb pt_PT@euro=ptg pt-Latn-PT=ptg pt-AO=ptb no=nor nb=nor nn-NO=nor "
        // The rest by the language alone; no catalog: English. Of several the first with a catalog wins.
        "cs-CZ=csy da=dan de-Latn-DE=ger en-GB=enu es-419=spn fr=fre hu=hun it=ita ja-Jpan-JP=jpn ko=krn nl=nld "
        "pl=plk ru-UA=rus sv=sve th=tha tr=trk uk-UA=enu =enu dej=enu -=enu uk-UA,ru-UA,en-US=rus en-US,de-DE=enu");
    for (const QString& pair : tags.split(QLatin1Char(' '))) {
        const QString code = KelvaneLocale::LanguageOf(pair.section(QLatin1Char('='), 0, 0).split(QLatin1Char(',')));
        EXPECT_EQ(code, pair.section(QLatin1Char('='), 1)) << pair.toStdString();
    }
}

// Without a screen the scale is 1; other scales show in the dialog.
TEST(DPIinfo, ScalesLengthsInPixelsOnly) {
    const QString sheet =
        QStringLiteral("margin: 10.4px 7.5px; font: 12.5pt; width: 9.5%; color: #10px0; x1.5px; top: 9.5px");
    EXPECT_EQ(DPIinfo::getInstance()->getScaledStyleSheet(sheet).toStdString(),
              "margin: 10px 8px; font: 12.5pt; width: 9.5%; color: #10px0; x1.5px; top: 10px");
}
