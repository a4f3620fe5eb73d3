// How the logger opens its log file.
#pragma once

#include <cstdio>
#include <string>

// The path in the platform's own type of path string: on these platforms the bytes as they are.
std::string toXString(const std::string& path);

// Opens a file for appending and creates it where it is missing. The caller closes the stream. Null and errno on
// failure. Source: fopen(3).
template <typename Char>
std::FILE* xfopen(const std::basic_string<Char>& path);
template <>
std::FILE* xfopen<char>(const std::string& path);
