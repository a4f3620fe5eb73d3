// The rows of the message catalogue, as str-table-rows.cpp holds them.
#pragma once

namespace StrTable {

// How many rows the message catalogue has; row numbers run from 0 to one less.
constexpr int kRowCount = 1096;

// One row of the message catalogue. Both strings are constant text and live as long as the process.
struct Row {
    const char* key;   // ASCII letters, digits and "_"; unique also when case is ignored
    const char* text;  // English source text, UTF-8; translated in the context "global"
};

// All rows of the catalogue; the index is the row number that the programs of the family share.
extern const Row kRows[kRowCount];

}  // namespace StrTable
