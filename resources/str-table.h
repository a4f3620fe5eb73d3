// The message catalogue that all programs of the client family share: text for people is fetched by row number.
#pragma once

#include <QString>

namespace StrTable {

// The rows that the launcher shows.
constexpr int kRowReady = 527;         // "%1 is ready."
constexpr int kRowInitializing = 543;  // "%1 is initializing..."
constexpr int kRowAppName = 866;       // the product's name, %1 of the other two

// Fills the table. Main thread, once, after the translator is installed and before any other thread starts; the table
// is constant from then on.
void InitStrTable();

// The row's text in the language of the installed translator, or in English where there is none. Placeholders are left
// to the caller. `index` is 0 to 1095; any other value is the caller's fault. Any thread.
// Source: QCoreApplication::translate.
QString LoadStr(int index);

// The row's text with the product's name in place of its %1. Any thread.
QString LoadStrWithAppName(int index);

// The number of the row with this key, letter case ignored, or -1. Any thread.
int LookupStrID(QString key);

}  // namespace StrTable
