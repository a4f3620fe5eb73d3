// Texts for people and programs, and names of entries.
#pragma once

#include <QString>
#include <cstdint>
#include <string>

// For output: characters that show as nothing or steer a terminal, and what is no UTF-8, as "\xNN"; a backslash
// doubled. Everything is shown through this once, when it is printed.
std::string Printable(const std::string& bytes);
QString Q(const std::string& bytes);  // the same, for JSON

std::string SizeText(std::int64_t bytes);  // "1.0 MiB"
std::string Octal(unsigned mode);          // "0755"

bool IsUtf8(const std::string& bytes);
bool IsAscii(const std::string& bytes);
bool HasControl(const std::string& bytes);
bool Matches(const QString& text, const QString& pattern);  // as a whole

// In composed form (NFC); `utf8` must be UTF-8.
std::string Composed(const std::string& utf8);

// The same key for all names that a volume takes for one that ignores letter case and Unicode form: case folded and
// decomposed. Source: ICU.
std::string FoldedName(const std::string& utf8);

// The part of a path before its last "/"; empty where there is none.
std::string ParentOf(const std::string& path);
