#include <QLocale>

#include "pier/kelvane-locale.h"

namespace {

struct Language {
    const char* tag;   // ISO 639 code, lower case
    const char* code;  // catalog
};

// Languages whose tag alone decides. Chinese and Portuguese have two catalogs each.
constexpr Language kLanguages[] = {
    {"cs", "csy"}, {"da", "dan"}, {"de", "ger"}, {"en", "enu"}, {"es", "spn"}, {"fr", "fre"}, {"hu", "hun"},
    {"it", "ita"}, {"ja", "jpn"}, {"ko", "krn"}, {"nb", "nor"}, {"nl", "nld"}, {"nn", "nor"}, {"no", "nor"},
    {"pl", "plk"}, {"ru", "rus"}, {"sv", "sve"}, {"th", "tha"}, {"tr", "trk"},
};

// Chinese is written in two scripts: the tag may name one, otherwise the region tells which is in use there.
const char* ChineseCode(const QStringList& subtags) {
    for (const QString& subtag : subtags) {
        if (subtag == QLatin1String("hant")) {
            return "cht";
        }
        if (subtag == QLatin1String("hans")) {
            return "chs";
        }
    }
    for (const QString& subtag : subtags) {
        if (subtag == QLatin1String("tw") || subtag == QLatin1String("hk") || subtag == QLatin1String("mo")) {
            return "cht";
        }
    }
    return "chs";
}

// The catalog of one tag, or null.
const char* CodeOf(const QString& tag) {
    // A POSIX name brings a character set and a modifier, which say nothing about the language.
    const QString plain = tag.toLower().section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    QStringList subtags = QString(plain).replace(QLatin1Char('_'), QLatin1Char('-')).split(QLatin1Char('-'));
    const QString language = subtags.takeFirst();
    if (language == QLatin1String("zh")) {
        return ChineseCode(subtags);
    }
    if (language == QLatin1String("pt")) {
        return subtags.contains(QLatin1String("pt")) ? "ptg" : "ptb";
    }
    for (const Language& known : kLanguages) {
        if (language == QLatin1String(known.tag)) {
            return known.code;
        }
    }
    return nullptr;
}

}  // namespace

KelvaneLocale* KelvaneLocale::getInstance() {
    static KelvaneLocale instance;
    return &instance;
}

QString KelvaneLocale::getDefaultLanguage() const {
    return LanguageOf(QLocale::system().uiLanguages());
}

QString KelvaneLocale::LanguageOf(const QStringList& tags) {
    for (const QString& tag : tags) {
        if (const char* code = CodeOf(tag)) {
            return QLatin1String(code);
        }
    }
    return QLatin1String("enu");
}
