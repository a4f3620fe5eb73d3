#include "resources/str-table.h"

#include <QCoreApplication>

#include "resources/str-table-rows.h"

namespace StrTable {
namespace {

const char* ktab[kRowCount];  // keys, ASCII
const char* stab[kRowCount];  // English source texts, UTF-8

}  // namespace

void InitStrTable() {
    for (int row = 0; row < kRowCount; ++row) {
        ktab[row] = kRows[row].key;
        stab[row] = kRows[row].text;
    }
}

QString LoadStr(int index) {
    QString text = QCoreApplication::translate("global", stab[index], nullptr, -1);
    // A translator types the two characters where the text has a control character; the source texts may as well.
    text.replace(QLatin1String("\\n"), QLatin1String("\n"), Qt::CaseSensitive);
    text.replace(QLatin1String("\\t"), QLatin1String("\t"), Qt::CaseSensitive);
    return text;
}

QString LoadStrWithAppName(int index) {
    return LoadStr(index).arg(LoadStr(kRowAppName), 0, QLatin1Char(' '));
}

int LookupStrID(QString key) {  // NOLINT(performance-unnecessary-value-param): the family's signature.
    for (int row = 0; row < kRowCount; ++row) {
        if (qstricmp(key.toLocal8Bit().constData(), ktab[row]) == 0) {
            return row;
        }
    }
    return -1;
}

}  // namespace StrTable
