#include "platform/linux/desktop-entry.h"

#include <QDir>
#include <QFile>

namespace platform {
namespace {

// Undoes the escapes that every string value of a desktop entry may hold.
QString UnescapeString(const QString& value) {
    QString text;
    for (int at = 0; at < value.size(); ++at) {
        if (value[at] != QLatin1Char('\\') || at + 1 == value.size()) {
            text += value[at];
            continue;
        }
        const QChar escaped = value[++at];
        switch (escaped.unicode()) {
            case 's': text += QLatin1Char(' '); break;
            case 'n': text += QLatin1Char('\n'); break;
            case 't': text += QLatin1Char('\t'); break;
            case 'r': text += QLatin1Char('\r'); break;
            case '\\': text += QLatin1Char('\\'); break;
            default: text += QLatin1Char('\\') + QString(escaped); break;
        }
    }
    return text;
}

// Far more than any entry has, so that a file of some other kind is not read into memory as one line.
constexpr qint64 kLongestLine = 65536;

bool LiesIn(const QString& program, const QString& folder) {
    return QDir::cleanPath(program).startsWith(folder + QLatin1Char('/'));
}

}  // namespace

QString ProgramOfExec(const QString& value) {
    const QString text = UnescapeString(value).trimmed();
    if (!text.startsWith(QLatin1Char('"'))) {
        return text.section(QLatin1Char(' '), 0, 0).replace(QLatin1String("%%"), QLatin1String("%"));
    }
    QString program;
    for (int at = 1; at < text.size() && text[at] != QLatin1Char('"'); ++at) {
        if (text[at] == QLatin1Char('\\') && at + 1 < text.size()) {
            ++at;
        }
        program += text[at];
    }
    return program.replace(QLatin1String("%%"), QLatin1String("%"));
}

bool DesktopEntryRunsFrom(const QString& file, const QString& folder) {
    QFile entry(file);
    if (!entry.open(QIODevice::ReadOnly)) {
        return false;
    }
    bool isMain = false;
    // Lines are read by hand: QSettings would take a ";" or a "," in a value for syntax of its own.
    while (!entry.atEnd()) {
        const QString line = QString::fromUtf8(entry.readLine(kLongestLine)).trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            // Other groups, as for an application's further actions, don't say whose entry it is.
            isMain = line == QLatin1String("[Desktop Entry]");
        }
        if (!isMain) {
            continue;
        }
        const QString key = line.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = line.section(QLatin1Char('='), 1).trimmed();
        if ((key == QLatin1String("Exec") && LiesIn(ProgramOfExec(value), folder)) ||
            (key == QLatin1String("TryExec") && LiesIn(UnescapeString(value), folder))) {
            return true;
        }
    }
    return false;
}

}  // namespace platform
