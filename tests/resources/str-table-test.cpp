#include "resources/str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QTranslator>

#include "resources/str-table-rows.h"

static QString Text(const char* text) {
    return QString::fromUtf8(text);
}

// The row numbers are what the programs of the family share, and the catalogs find a text by its English. So a row is
// only ever appended: the digest of those that there are stays.
TEST(StrTableTest, TheRowsAreWhatTheyWere) {
    StrTable::InitStrTable();
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (int at = 0; at < StrTable::kRowCount; ++at) {
        const StrTable::Row& row = StrTable::kRows[at];
        digest.addData(QByteArray(row.key) + '=' + row.text + '\n');
        EXPECT_EQ(StrTable::LookupStrID(Text(row.key).toUpper()), at) << "a key for each, in whatever letters";
        EXPECT_EQ(StrTable::LoadStr(at), Text(row.text));
    }
    EXPECT_EQ(digest.result().toHex().toStdString(), "e929a1cc0421ac9d352ddbe4788dc0fc4092ae4b");
    EXPECT_EQ(StrTable::LookupStrID(QString()) + StrTable::LookupStrID(QStringLiteral("ключ")), -2);

    struct Escaping : QTranslator {
        QString translate(const char* context, const char* source, const char*, int) const override {
            return Text(context) + Text(source) == Text("globalError") ? Text("a\\nb\\tc\\Nd") : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(5) + StrTable::LoadStr(0), Text("a\nb\tc\\NdDeleted")) << "escapes of a translation";
}
