// The well-known paths of a home and of a started bundle.
#pragma once

#include <QString>

#include "product-layout.h"

// lhs followed by rhs, which is UTF-8.
inline QString operator+(const QString& lhs, const char* rhs) {
    return QString(lhs).append(QString::fromUtf8(rhs));
}

// Fills the table of UIPathManager for a home folder and for the folder that holds the launcher's binary, in the order
// that path-table.cpp shows; every value is cleaned (QDir::cleanPath). Everything else reads its paths from the table.
// Main thread, before any other.
void FillPathTable(const QString& home, const QString& applicationFolder);

// A path of the table.
QString TablePath(PathKey key);
