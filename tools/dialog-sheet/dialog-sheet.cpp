// Renders the real dialog on desktops of several colours, in every language and in one that needs more room than they
// do, and looks whether its text fits and can be read.
//
//   dialog-sheet render FOLDER     a picture for each language, state and desktop at the scale of this screen; exit 1,
//                                  with a line for each, where a text does not fit its place or is too faint
//   dialog-sheet compose FOLDER FILE    puts the pictures of all scales in FOLDER on one sheet
//
// QT_FONT_DPI sets the scale: 96, 120, 144, 192 are 1.0, 1.25, 1.5, 2.0. Run by scripts/dialog-sheet.
#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QProgressBar>
#include <QRawFont>
#include <QRegularExpression>
#include <QTextLayout>
#include <QTransform>
#include <QTranslator>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>

#include "launcher.h"
#include "pier/dpi-info.h"
#include "resources/str-table.h"
#include "resources/texts.h"

namespace {

// Stands for a language that needs more room than any of ours: each vowel three times. The product's name is never
// translated; with it in place the dialog's texts are two fifths longer than in English.
class LongLanguage : public QTranslator {
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* /*context*/, const char* source, const char* /*disambiguation*/,
                      int /*n*/) const override {
        QString text = QString::fromUtf8(source);
        return text == QLatin1String("Kelvane Quay Client") ? text : text.replace(kVowel, QStringLiteral("\\1\\1\\1"));
    }

private:
    const QRegularExpression kVowel{QStringLiteral("([aeiouy])")};
};

constexpr const char* kLongLanguage = "long";

// The codes of all catalogs, and that of the language that stands for a longer one.
QStringList Codes() {
    QStringList codes = QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (QString& code : codes) {
        code.chop(3);
    }
    return codes << QLatin1String(kLongLanguage);
}

// The translator of a code, null where there is no such catalog.
std::unique_ptr<QTranslator> TranslatorOf(const QString& code) {
    if (code == QLatin1String(kLongLanguage)) {
        return std::make_unique<LongLanguage>();
    }
    auto catalog = std::make_unique<QTranslator>();
    return catalog->load(QStringLiteral(":/%1.qm").arg(code)) ? std::move(catalog) : nullptr;
}

struct State {
    int row;
    int value;
};
constexpr State kStates[] = {
    {StrTable::kRowInitializing, 0}, {StrTable::kRowInitializing, 42}, {StrTable::kRowReady, 100}};
constexpr const char* kScales[] = {"1.00", "1.25", "1.50", "2.00"};

struct Desktop {
    const char* name;
    QRgb ground;
    QRgb text;
    QRgb highlight;
};
constexpr Desktop kDesktops[] = {
    {"light", 0xFFEFEFEF, 0xFF000000, 0xFF308CC6},
    {"dark", 0xFF2A2A2E, 0xFFFFFFFF, 0xFF5294E2},
    {"high-contrast", 0xFF000000, 0xFFFFFF00, 0xFF00FFFF},
};
constexpr std::size_t kDark = 1;

// What text needs to be read with weak eyes. Source: WCAG 2.1, 1.4.3.
constexpr double kLeastContrast = 4.5;

QString FileName(const QString& folder, const QString& code, int value, const QString& kind) {
    return QStringLiteral("%1/%2-%3-%4.png").arg(folder, code).arg(value).arg(kind);
}

// What a file's name says of scale and desktop.
QString Kind(const QString& scale, const Desktop& desktop) {
    return scale + QLatin1Char('-') + QLatin1String(desktop.name);
}

// Gives the application the colours of a desktop, labels and bars by name too, as some desktops do.
void GoTo(const Desktop& desktop) {
    QPalette palette(QColor(desktop.ground), QColor(desktop.ground));
    palette.setColor(QPalette::WindowText, QColor(desktop.text));
    palette.setColor(QPalette::Text, QColor(desktop.text));
    palette.setColor(QPalette::Highlight, QColor(desktop.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(desktop.ground));
    for (const char* of : {static_cast<const char*>(nullptr), "QLabel", "QProgressBar"}) {
        QApplication::setPalette(palette, of);
    }
}

// The contrast of two colours, 1 to 21. Source: WCAG 2.1, "contrast ratio".
double Contrast(QRgb one, QRgb other) {
    const auto luminance = [](QRgb colour) {
        const auto linear = [](int value) {
            const double part = value / 255.0;
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
    };
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

// The contrast between the ground of a text, which is its picture's most frequent colour, and the strongest other.
double TextContrast(const QImage& text) {
    std::map<QRgb, int> colours;
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) {
            ++colours[text.pixel(x, y)];
        }
    }
    const auto ground = std::max_element(colours.begin(), colours.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double strongest = 1;
    for (const auto& colour : colours) {
        strongest = qMax(strongest, Contrast(ground->first, colour.first));
    }
    return strongest;
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
bool Fits(const QProgressDialog& dialog, const QString& code) {
    const auto* label = dialog.findChild<QLabel*>();
    QTextLayout layout(label->text(), label->font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    bool fits = true;
    const auto complain = [&](const char* what, double has, double needs) {
        std::printf("%s: %s: '%s' needs %.0f, has %.0f\n", qPrintable(code), what, qPrintable(label->text()), needs,
                    has);
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

// Whether label, percentage and bar stand out from what is behind them; says what does not.
bool IsReadable(const QProgressDialog& dialog, const QImage& picture, const QString& code, const char* desktop) {
    const auto* label = dialog.findChild<QLabel*>();
    const auto* bar = dialog.findChild<QProgressBar*>();
    const QFontMetrics metrics(bar->font());
    QRect percentage(0, 0, metrics.horizontalAdvance(bar->text()), metrics.ascent() - metrics.descent());
    percentage.moveCenter(bar->geometry().center());
    const QPoint done(bar->x() + bar->width() / 5, bar->geometry().center().y());
    const QPoint open(bar->x() + bar->width() * 4 / 5, done.y());
    // Qt 6 draws more than one dot for each of the dialog's where the screen is scaled.
    const double dots = static_cast<double>(picture.width()) / dialog.width();
    const QTransform drawn = QTransform::fromScale(dots, dots);
    // An empty or full bar has one colour.
    const bool isPartial = bar->value() > bar->minimum() && bar->value() < bar->maximum();

    const std::pair<const char*, double> parts[] = {
        {"label", TextContrast(picture.copy(drawn.mapRect(label->geometry())))},
        {"percentage", TextContrast(picture.copy(drawn.mapRect(percentage)))},
        {"bar", isPartial ? Contrast(picture.pixel(drawn.map(done)), picture.pixel(drawn.map(open))) : kLeastContrast},
    };
    bool readable = true;
    for (const auto& [part, contrast] : parts) {
        if (contrast < kLeastContrast) {
            std::printf("%s: on a %s desktop the %s at %d%% has a contrast of %.1f, needs %.1f\n", qPrintable(code),
                        desktop, part, bar->value(), contrast, kLeastContrast);
            readable = false;
        }
    }
    return readable;
}

// Renders the dialog in the language that is installed, on a desktop. 0, 1 for a fault, 2 where the folder can't be
// written.
int RenderOn(const Desktop& desktop, const QString& code, const QString& folder, const QString& scale) {
    GoTo(desktop);
    Launcher launcher;
    ProcessingProgressDialog* dialog = DialogOf(launcher);
    launcher.ShowMsgBox();
    int result = 0;
    for (const State& state : kStates) {
        launcher.SetLabelText(StrTable::LoadStrWithAppName(state.row));
        launcher.UpdateProgress(100, state.value);
        const QImage picture = dialog->grab().toImage();
        if (!Fits(*dialog, code) || !IsReadable(*dialog, picture, code, desktop.name)) {
            result = 1;
        }
        if (!picture.save(FileName(folder, code, state.value, Kind(scale, desktop)))) {
            std::fprintf(stderr, "can't write to %s\n", qPrintable(folder));
            return 2;
        }
    }
    return result;
}

int Render(const QString& folder) {
    const QString scale = QString::number(DPIinfo::getInstance()->getDPI(), 'f', 2);
    int result = 0;
    for (const QString& code : Codes()) {
        const std::unique_ptr<QTranslator> catalog = TranslatorOf(code);
        if (catalog == nullptr) {
            std::printf("%s: not a catalog\n", qPrintable(code));
            return 2;
        }
        QCoreApplication::installTranslator(catalog.get());
        const bool thai = code == QLatin1String("tha");
        QApplication::setFont(
            QFont(thai ? QStringLiteral("Microsoft Sans Serif") : QStringLiteral("Arial"), 12, -1, false));
        for (const Desktop& desktop : kDesktops) {
            result = qMax(result, RenderOn(desktop, code, folder, scale));
        }
        QCoreApplication::removeTranslator(catalog.get());
    }
    std::printf("scale %s: %s\n", qPrintable(scale), result == 0 ? "every text fits and can be read" : "see above");
    return result;
}

// One row a language; the three states at scale 1, the one in the middle on a dark desktop and at the other scales, all
// reduced.
int Compose(const QString& folder, const QString& file) {
    constexpr int kGap = 8;
    constexpr int kNameWidth = 48;
    constexpr double kReduction = 0.55;
    const QStringList codes = Codes();
    std::vector<std::pair<int, QString>> columns;
    for (const State& state : kStates) {
        columns.emplace_back(state.value, Kind(QLatin1String(kScales[0]), kDesktops[0]));
    }
    columns.emplace_back(42, Kind(QLatin1String(kScales[0]), kDesktops[kDark]));
    for (std::size_t at = 1; at < std::size(kScales); ++at) {
        columns.emplace_back(42, Kind(QLatin1String(kScales[at]), kDesktops[0]));
    }
    int width = kNameWidth;
    int height = 0;
    std::vector<int> at;
    for (const auto& [value, kind] : columns) {
        const QImage picture(FileName(folder, codes.first(), value, kind));
        at.push_back(width);
        width += static_cast<int>(picture.width() * kReduction) + kGap;
        height = qMax(height, static_cast<int>(picture.height() * kReduction) + kGap);
    }
    QImage sheet(width, height * static_cast<int>(codes.size()) + kGap, QImage::Format_RGB32);
    sheet.fill(QColor(200, 204, 210));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setFont(QFont(QStringLiteral("Arial"), 10));
    int y = kGap;
    for (const QString& code : codes) {
        painter.drawText(kGap, y + height / 2, code);
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const QImage picture(FileName(folder, code, columns[column].first, columns[column].second));
            if (picture.isNull()) {
                std::fprintf(stderr, "no picture of %s at %s\n", qPrintable(code), qPrintable(columns[column].second));
                return 2;
            }
            if (columns[column].second.endsWith(QLatin1String(kDesktops[kDark].name))) {
                painter.fillRect(at[column] - kGap / 2, y - kGap / 2,
                                 static_cast<int>(picture.width() * kReduction) + kGap, height,
                                 QColor(kDesktops[kDark].ground));
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
