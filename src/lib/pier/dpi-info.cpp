#include "pier/dpi-info.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

#include "platform/screen.h"

DPIinfo* DPIinfo::getInstance() {
    static DPIinfo instance;
    return &instance;
}

double DPIinfo::getDPI() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 1.0 : screen->logicalDotsPerInch() / platform::kUnscaledDotsPerInch;
}

QString DPIinfo::getScaledStyleSheet(QString styleSheet) const {
    static const QRegularExpression length(QStringLiteral("\\b(\\d+(?:\\.\\d+)?)px\\b"));
    const double scale = getDPI();
    int from = 0;
    for (QRegularExpressionMatch match = length.match(styleSheet); match.hasMatch();
         match = length.match(styleSheet, from)) {
        const QString scaled = QString::number(qRound(match.captured(1).toDouble() * scale));
        const int start = static_cast<int>(match.capturedStart(1));
        styleSheet.replace(start, static_cast<int>(match.capturedLength(1)), scaled);
        from = start + static_cast<int>(scaled.size());
    }
    return styleSheet;
}
