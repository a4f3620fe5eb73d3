#include "resources/str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "resources/str-table-rows.h"
#include "resources/texts.h"

namespace {

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

int RowsWith(const char* text) {
    return static_cast<int>(
        std::count_if(std::begin(StrTable::kRows), std::end(StrTable::kRows),
                      [text](const StrTable::Row& row) { return Text(row.text).contains(Text(text)); }));
}

class StrTableTest : public ::testing::Test {
protected:
    StrTableTest() {
        qInitResources_texts();
        StrTable::InitStrTable();
    }
};

// The row numbers are what the programs of the family share, and the catalogs find a text by its English: a row that
// moves or a text that changes on one side alone shows up here.
TEST_F(StrTableTest, TheFiguresOfTheTable) {
    QSet<QString> keys;
    QSet<QString> texts;
    int longest = 0;
    for (const StrTable::Row& row : StrTable::kRows) {
        keys.insert(QString::fromLatin1(row.key).toLower());
        texts.insert(QString::fromUtf8(row.text));
        longest = qMax(longest, static_cast<int>(QString::fromUtf8(row.text).size()));
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[A-Za-z0-9_]+$")).match(QLatin1String(row.key)).hasMatch());
        EXPECT_FALSE(QString::fromUtf8(row.text).contains(QLatin1Char('\\'))) << row.key;
    }
    EXPECT_EQ(keys.size(), 1096);
    EXPECT_EQ(texts.size(), 966);
    EXPECT_LE(longest, 360);
    const std::pair<const char*, int> rows[] = {{"%1", 107},        {"%2", 20},        {"%3", 10},
                                                {"%4", 8},          {"%5", 0},         {"<a href=\"https://", 6},
                                                {"<a href=\"%", 2}, {"<a href=\"", 8}, {"[ProductName]", 38}};
    for (const auto& [text, count] : rows) {
        EXPECT_EQ(RowsWith(text), count) << text;
    }
}

TEST_F(StrTableTest, RowsThatOtherProgramsCount) {
    const struct {
        int row;
        const char* key;
        const char* text;
    } rows[] = {
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
        {1095, "session_name_empty", "This is a required field."},
    };
    for (const auto& expected : rows) {
        EXPECT_STREQ(StrTable::kRows[expected.row].key, expected.key);
        EXPECT_EQ(StrTable::LoadStr(expected.row), QString::fromUtf8(expected.text));
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(expected.key).toUpper()), expected.row);
    }
    EXPECT_EQ(StrTable::LookupStrID(QString()), -1);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("no_such_key")), -1);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("ключ")), -1);
}

TEST_F(StrTableTest, EscapesInATranslationBecomeControlCharacters) {
    class Escaping : public QTranslator {
    public:
        QString translate(const char* context, const char* source, const char*, int) const override {
            return QLatin1String(context) == QLatin1String("global") && QLatin1String(source) == QLatin1String("Error")
                       ? QStringLiteral("a\\nb\\tc\\Nd")
                       : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(5), QStringLiteral("a\nb\tc\\Nd"));
    EXPECT_EQ(StrTable::LoadStr(0), QStringLiteral("Deleted"));
    QCoreApplication::removeTranslator(&translator);
}

TEST_F(StrTableTest, EveryCatalogHasEveryText) {
    const struct {
        const char* code;
        const char* ready;
        const char* initializing;
    } texts[] = {
        {"chs", "%1 已就绪。", "%1 正在初始化..."},
        {"cht", "%1 準備完成", "%1 準備中..."},
        {"csy", "%1 je připravena.", "%1 se inicializuje..."},
        {"dan", "%1 er klar.", "%1 initialiserer..."},
        {"enu", "%1 is ready.", "%1 is initializing..."},
        {"fre", "%1 est prêt.", "%1 est en cours d'initialisation..."},
        {"ger", "%1 ist bereit.", "%1 wird initialisiert ..."},
        {"hun", "A %1 készen áll.", "A %1 inicializálása folyamatban..."},
        {"ita", "%1 pronta.", "%1 sta inizializzando..."},
        {"jpn", "%1 は準備完了です。", "%1 は初期化中です。"},
        {"krn", "%1 사용 준비가 되었습니다.", "%1 초기화 중..."},
        {"nld", "%1 is gereed.", "%1 is bezig met initialisatie..."},
        {"nor", "%1 er klar.", "%1 starter opp..."},
        {"plk", "Aplikacja %1 jest gotowa.", "Aplikacja %1 jest inicjowana..."},
        {"ptb", "O %1 está pronto.", "O %1 está sendo inicializado..."},
        {"ptg", "%1 pronta.", "%1 a iniciar..."},
        {"rus", "%1 готов.", "%1 выполняет инициализацию..."},
        {"spn", "%1 está lista.", "%1 se está inicializando..."},
        {"sve", "%1 är klar.", "%1 initialiserar..."},
        {"tha", "%1 พร้อมแล้ว", "%1 กำลังเริ่มต้น..."},
        {"trk", "%1 hazır.", "%1 başlıyor..."},
    };
    for (const auto& expected : texts) {
        SCOPED_TRACE(expected.code);
        QTranslator catalog;
        ASSERT_TRUE(catalog.load(QStringLiteral(":/%1.qm").arg(Text(expected.code))));
        for (const StrTable::Row& row : StrTable::kRows) {
            const QString text = catalog.translate("global", row.text);
            EXPECT_FALSE(text.isEmpty()) << row.key;
            EXPECT_TRUE(Text(expected.code) != Text("enu") || text == Text(row.text)) << row.key;
        }
        QCoreApplication::installTranslator(&catalog);
        EXPECT_EQ(StrTable::LoadStr(527), Text(expected.ready));
        EXPECT_EQ(StrTable::LoadStr(543), Text(expected.initializing));
        EXPECT_EQ(StrTable::LoadStr(866), Text("Kelvane Quay Client"));
        QCoreApplication::removeTranslator(&catalog);
    }
}

}  // namespace
