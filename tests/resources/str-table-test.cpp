#include "resources/str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "resources/str-table-rows.h"
#include "resources/texts.h"

namespace {

class StrTableTest : public ::testing::Test {
protected:
    StrTableTest() {
        qInitResources_texts();
        StrTable::InitStrTable();
    }

    static QString Text(const char* text) { return QString::fromUtf8(text); }
};

// The row numbers are what the programs of the family share, and the catalogs find a text by its English: a row that
// moves or a text that changes on one side alone shows up here.
TEST_F(StrTableTest, TheFiguresOfTheTable) {
    QSet<QString> keys;
    QSet<QString> texts;
    for (const StrTable::Row& row : StrTable::kRows) {
        keys.insert(Text(row.key).toLower());
        texts.insert(Text(row.text));
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[A-Za-z0-9_]+$")).match(Text(row.key)).hasMatch());
        EXPECT_TRUE(Text(row.text).size() <= 360 && !Text(row.text).contains(QLatin1Char('\\'))) << row.key;
    }
    EXPECT_EQ(keys.size(), 1096);
    EXPECT_EQ(texts.size(), 966);
    std::map<std::string, int> counts;
    for (const StrTable::Row& row : StrTable::kRows) {
        for (const char* part :
             {"%1", "%2", "%3", "%4", "%5", "<a href=\"https://", "<a href=\"%", "<a href=\"", "[ProductName]"}) {
            counts[part] += Text(row.text).contains(Text(part)) ? 1 : 0;
        }
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{{"%1", 107},
                                                  {"%2", 20},
                                                  {"%3", 10},
                                                  {"%4", 8},
                                                  {"%5", 0},
                                                  {"<a href=\"", 8},
                                                  {"<a href=\"%", 2},
                                                  {"<a href=\"https://", 6},
                                                  {"[ProductName]", 38}}));
    const std::tuple<int, const char*, const char*> rows[] = {
        {0, "tray_delete", "Deleted"},
        {1, "action_unlink", "Unlink"},
        {5, "err_common", "Error"},
        {6, "err_conflict", "File conflicts occurred. The file is now renamed as %1."},
        {125, "msi_progress_dlg_title", "[ProductName] Setup"},
        {162, "unlink_connection", "Unlink"},
        {226, "btn_unlink", "Unlink"},
        {527, "desc_tsly_env_preparation_done_quay", "%1 is ready."},
        {543, "desc_tsly_env_preparing_quay", "%1 is initializing..."},
        {866, "app_name_quay_client", "Kelvane Quay Client"},
        {1095, "session_name_empty", "This is a required field."}};
    for (const auto& [row, key, text] : rows) {
        EXPECT_STREQ(StrTable::kRows[row].key, key);
        EXPECT_EQ(StrTable::LoadStr(row), Text(text));
        EXPECT_EQ(StrTable::LookupStrID(Text(key).toUpper()), row);
    }
    for (const char* key : {"", "no_such_key", "ключ"}) {
        EXPECT_EQ(StrTable::LookupStrID(Text(key)), -1);
    }
}

TEST_F(StrTableTest, EscapesInATranslationBecomeControlCharacters) {
    struct Escaping : QTranslator {
        QString translate(const char* context, const char* source, const char*, int) const override {
            return Text(context) + Text(source) == Text("globalError") ? Text("a\\nb\\tc\\Nd") : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(5), Text("a\nb\tc\\Nd"));
    EXPECT_EQ(StrTable::LoadStr(0), Text("Deleted"));
}

TEST_F(StrTableTest, EveryCatalogHasEveryText) {
    const QStringList names = QDir(Text(":/")).entryList({Text("*.qm")});
    EXPECT_EQ(names.size(), 21);
    for (const QString& name : names) {
        QTranslator catalog;
        ASSERT_TRUE(catalog.load(Text(":/") + name));
        for (const StrTable::Row& row : StrTable::kRows) {
            const QString text = catalog.translate("global", row.text);
            EXPECT_FALSE(text.isEmpty()) << row.key;
            EXPECT_TRUE(name != Text("enu.qm") || text == Text(row.text)) << row.key;
        }
    }
}

}  // namespace
