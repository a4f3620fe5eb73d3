// What the content of a few files must be.
#pragma once

#include <string>

#include "finding.h"

// Whether the bytes begin like a program: ELF, Mach-O or "#!". Four bytes are enough.
bool LooksLikeProgram(const std::string& bytes);
bool IsMachO(const std::string& bytes);
bool IsPng(const std::string& bytes);

// The text of a key in a property list in XML form. False if there is no such key, or it is no such list.
bool PropertyListValue(const std::string& bytes, const char* key, std::string& value);

// Whether an entry lies directly in Contents/MacOS, where programs lie.
bool IsProgramPlace(const std::string& path);

// Adds what is wrong with the client's own property list. `present` says whether there is one, `bytes` is its content,
// `binary` begins the client's binary: only a package for macOS needs a property list, but none may have a wrong one.
void CheckClientPropertyList(bool present, const std::string& bytes, const std::string& binary, Findings& findings);
