#include "text.h"

#include <unicode/unistr.h>

#include <QLocale>
#include <QRegularExpression>
#include <algorithm>

std::string Printable(const std::string& bytes) {
    if (!HasControl(bytes) && IsAscii(bytes) && bytes.find('\\') == std::string::npos) {
        return bytes;
    }
    const bool isUtf8 = IsUtf8(bytes);
    const QByteArray raw = QByteArray::fromStdString(bytes);
    QByteArray out;
    for (const char32_t letter : (isUtf8 ? QString::fromUtf8(raw) : QString::fromLatin1(raw)).toStdU32String()) {
        const QByteArray text =
            isUtf8 ? QString::fromUcs4(&letter, 1).toUtf8() : QByteArray(1, static_cast<char>(letter));
        const QChar::Category category = QChar::category(letter);
        const bool isHidden = category == QChar::Other_Control || category == QChar::Other_Format ||
                              category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
        out += letter == '\\'                            ? QByteArrayLiteral("\\\\")
               : isHidden || (letter >= 0x80 && !isUtf8) ? "\\x" + text.toHex(' ').replace(" ", "\\x")
                                                         : text;
    }
    return out.toStdString();
}

QString Q(const std::string& bytes) {
    return QString::fromStdString(Printable(bytes));
}

std::string SizeText(std::int64_t bytes) {
    return bytes < 1024 ? std::to_string(bytes) + " bytes" : QLocale::c().formattedDataSize(bytes, 1).toStdString();
}

std::string Octal(unsigned mode) {
    return QString::number(mode, 8).rightJustified(4, QLatin1Char('0')).toStdString();
}

bool IsUtf8(const std::string& bytes) {
    return IsAscii(bytes) || QString::fromStdString(bytes).toStdString() == bytes;
}

bool IsAscii(const std::string& bytes) {
    return std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
}

bool HasControl(const std::string& bytes) {
    return std::any_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7f; });
}

bool Matches(const QString& text, const QString& pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

std::string Composed(const std::string& utf8) {
    return IsAscii(utf8) ? utf8 : QString::fromStdString(utf8).normalized(QString::NormalizationForm_C).toStdString();
}

std::string FoldedName(const std::string& utf8) {
    // Decomposed on both sides of the folding: a folded letter can come apart, a decomposed one can fold.
    const auto decomposed = [](const std::string& text) {
        return QString::fromStdString(text).normalized(QString::NormalizationForm_D).toStdString();
    };
    std::string folded;
    icu::UnicodeString::fromUTF8(decomposed(utf8)).foldCase().toUTF8String(folded);
    return decomposed(folded);
}

std::string ParentOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}
