// The user's language as the three-letter code that names a translation catalog.
#pragma once

#include <QString>
#include <QStringList>

class KelvaneLocale {
public:
    // The one object; it lives until the process ends.
    static KelvaneLocale* getInstance();

    // The code of the first of the user's languages that has a catalog, as resources/languages.tsv lists them; "enu"
    // where none has. Source: QLocale::uiLanguages.
    QString getDefaultLanguage() const;

    // The same for a given list of language tags, the most wanted first. A tag is as BCP 47 writes it ("zh-Hant-TW") or
    // as POSIX does ("zh_TW.UTF-8@radical"); letter case does not count.
    static QString LanguageOf(const QStringList& tags);

private:
    KelvaneLocale() = default;
};
