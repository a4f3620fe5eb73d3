// The scale of the primary screen.
#pragma once

#include <QString>

class DPIinfo {
public:
    // The one object; it lives until the process ends.
    static DPIinfo* getInstance();

    // The screen's logical dots per inch over those of an unscaled one (96, on macOS 72): 1.0 on an unscaled screen,
    // and where there is no screen. Main thread, while an application object exists. Source:
    // QScreen::logicalDotsPerInch.
    double getDPI() const;

    // The style sheet with every length in px multiplied by getDPI() and rounded to a whole number.
    QString getScaledStyleSheet(QString styleSheet) const;

private:
    DPIinfo() = default;
};
