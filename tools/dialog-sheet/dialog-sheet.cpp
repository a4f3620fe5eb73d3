// Renders the real dialog in every language and looks whether its text fits.
//
//   dialog-sheet render FOLDER     a picture for each language and state at the scale of this screen; exit 1, with a
//                                  line for each, where a text does not fit its place
//   dialog-sheet compose FOLDER FILE    puts the pictures of all scales in FOLDER on one sheet
//
// QT_FONT_DPI sets the scale: 96, 120, 144, 192 are 1.0, 1.25, 1.5, 2.0. Run by scripts/dialog-sheet.
#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QRawFont>
#include <QTextLayout>
#include <QTranslator>
#include <cstdio>
#include <memory>

#include "launcher.h"
#include "pier/dpi-info.h"
#include "resources/str-table.h"
#include "resources/texts.h"

namespace {

constexpr const char* kLanguages[] = {"chs", "cht", "csy", "dan", "enu", "fre", "ger", "hun", "ita", "jpn", "krn",
                                      "nld", "nor", "plk", "ptb", "ptg", "rus", "spn", "sve", "tha", "trk"};

struct State {
    int row;
    int value;
};
constexpr State kStates[] = {
    {StrTable::kRowInitializing, 0}, {StrTable::kRowInitializing, 42}, {StrTable::kRowReady, 100}};
constexpr const char* kScales[] = {"1.00", "1.25", "1.50", "2.00"};

QString FileName(const QString& folder, const char* code, int value, const QString& scale) {
    return QStringLiteral("%1/%2-%3-%4.png").arg(folder, QLatin1String(code)).arg(value).arg(scale);
}

// The dialog of a launcher that was set up as main() does it.
ProcessingProgressDialog* DialogOf(const Launcher& /*launcher*/) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) {
            return dialog;
        }
    }
    return nullptr;
}

// Whether every character of the label has a glyph of some installed font, and the text as laid out lies inside the
// label; says what does not.
bool Fits(const QProgressDialog& dialog, const char* code) {
    const auto* label = dialog.findChild<QLabel*>();
    QTextLayout layout(label->text(), label->font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    bool fits = true;
    const auto complain = [&](const char* what, double has, double needs) {
        std::printf("%s: %s: '%s' needs %.0f, has %.0f\n", code, what, qPrintable(label->text()), needs, has);
        fits = false;
    };
    const QRectF text = layout.boundingRect();
    if (text.width() > label->contentsRect().width()) {
        complain("the label is too narrow", label->contentsRect().width(), text.width());
    }
    if (text.height() > label->contentsRect().height()) {
        complain("the label is too low", label->contentsRect().height(), text.height());
    }
    if (!dialog.rect().contains(label->geometry())) {
        complain("the label leaves the dialog", dialog.width(), label->geometry().right());
    }
    const auto* bar = dialog.findChild<QProgressBar*>();
    if (!dialog.rect().contains(bar->geometry()) || bar->geometry().intersects(label->geometry())) {
        complain("the bar is out of place", dialog.height(), bar->geometry().bottom());
    }
    const QFontMetrics metrics(bar->font());
    if (metrics.height() > bar->height() || metrics.horizontalAdvance(bar->text()) > bar->width()) {
        complain("the bar's text is cut", bar->height(), metrics.height());
    }
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (run.glyphIndexes().contains(0)) {
            complain("a character has no glyph", 0, 1);
        }
    }
    return fits;
}

int Render(const QString& folder) {
    const QString scale = QString::number(DPIinfo::getInstance()->getDPI(), 'f', 2);
    bool fits = true;
    for (const char* code : kLanguages) {
        QTranslator catalog;
        if (!catalog.load(QStringLiteral(":/%1.qm").arg(QLatin1String(code)))) {
            std::printf("%s: no catalog\n", code);
            return 2;
        }
        QCoreApplication::installTranslator(&catalog);
        const bool thai = QLatin1String(code) == QLatin1String("tha");
        QApplication::setFont(
            QFont(thai ? QStringLiteral("Microsoft Sans Serif") : QStringLiteral("Arial"), 12, -1, false));
        Launcher launcher;
        ProcessingProgressDialog* dialog = DialogOf(launcher);
        launcher.ShowMsgBox();
        for (const State& state : kStates) {
            launcher.SetLabelText(
                StrTable::LoadStr(state.row).arg(StrTable::LoadStr(StrTable::kRowAppName), 0, QLatin1Char(' ')));
            launcher.UpdateProgress(100, state.value);
            fits = Fits(*dialog, code) && fits;
            if (!dialog->grab().save(FileName(folder, code, state.value, scale))) {
                std::fprintf(stderr, "can't write to %s\n", qPrintable(folder));
                return 2;
            }
        }
        QCoreApplication::removeTranslator(&catalog);
    }
    std::printf("scale %s: %s\n", qPrintable(scale), fits ? "every text fits" : "see above");
    return fits ? 0 : 1;
}

// One row a language; the three states at scale 1, then the state in the middle at the other scales, all reduced.
int Compose(const QString& folder, const QString& file) {
    constexpr int kGap = 8;
    constexpr int kNameWidth = 48;
    constexpr double kReduction = 0.55;
    std::vector<std::pair<int, QString>> columns;
    for (const State& state : kStates) {
        columns.emplace_back(state.value, QLatin1String(kScales[0]));
    }
    for (std::size_t at = 1; at < std::size(kScales); ++at) {
        columns.emplace_back(42, QLatin1String(kScales[at]));
    }
    int width = kNameWidth;
    int height = 0;
    std::vector<int> at;
    for (const auto& [value, scale] : columns) {
        const QImage picture(FileName(folder, kLanguages[0], value, scale));
        at.push_back(width);
        width += static_cast<int>(picture.width() * kReduction) + kGap;
        height = qMax(height, static_cast<int>(picture.height() * kReduction) + kGap);
    }
    QImage sheet(width, height * static_cast<int>(std::size(kLanguages)) + kGap, QImage::Format_RGB32);
    sheet.fill(QColor(200, 204, 210));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setFont(QFont(QStringLiteral("Arial"), 10));
    int y = kGap;
    for (const char* code : kLanguages) {
        painter.drawText(kGap, y + height / 2, QLatin1String(code));
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const QImage picture(FileName(folder, code, columns[column].first, columns[column].second));
            if (picture.isNull()) {
                std::fprintf(stderr, "no picture of %s at %s\n", code, qPrintable(columns[column].second));
                return 2;
            }
            painter.drawImage(
                at[column], y,
                picture.scaled(picture.size() * kReduction, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        }
        y += height;
    }
    painter.end();
    return sheet.save(file) ? 0 : 2;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInitResources_texts();
    StrTable::InitStrTable();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QLatin1String("render")) {
        return Render(arguments[2]);
    }
    if (arguments.size() == 4 && arguments[1] == QLatin1String("compose")) {
        return Compose(arguments[2], arguments[3]);
    }
    std::fprintf(stderr, "usage: dialog-sheet render FOLDER | dialog-sheet compose FOLDER FILE\n");
    return 2;
}
