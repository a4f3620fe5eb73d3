#include <QLocale>

#include "pier/kelvane-locale.h"

namespace {

// A tag, lower case, and what it stands for.
struct Entry {
    const char* tag;
    const char* meaning;
};

// The catalogs by their language and region. The first of a language serves its other regions as well.
constexpr Entry kCatalogs[] = {
#include "languages.inc"
};

// Chinese is written in two scripts, which a tag names or the region implies; Norwegian has two forms and one catalog.
constexpr Entry kSameAs[] = {
    {"zh-hans", "zh-cn"}, {"zh-hant", "zh-tw"}, {"zh-hk", "zh-tw"}, {"zh-mo", "zh-tw"}, {"nn", "nb"}, {"no", "nb"},
};

QString Resolve(const QString& tag) {
    for (const Entry& entry : kSameAs) {
        if (tag == QLatin1String(entry.tag)) {
            return QLatin1String(entry.meaning);
        }
    }
    return tag;
}

// The catalog of one tag, or null.
const char* CodeOf(const QString& tag) {
    // A POSIX name brings a character set and a modifier, which say nothing about the language.
    const QString plain = tag.toLower().section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    QStringList subtags = QString(plain).replace(QLatin1Char('_'), QLatin1Char('-')).split(QLatin1Char('-'));
    const QString language = Resolve(subtags.takeFirst()) + QLatin1Char('-');
    // In their order, so that a script counts before a region.
    for (const QString& subtag : subtags) {
        const QString wanted = Resolve(language + subtag);
        for (const Entry& catalog : kCatalogs) {
            if (wanted == QLatin1String(catalog.tag)) {
                return catalog.meaning;
            }
        }
    }
    for (const Entry& catalog : kCatalogs) {
        if (QLatin1String(catalog.tag).startsWith(language)) {
            return catalog.meaning;
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
