#include "log/log-file.h"

std::string toXString(const std::string& path) {
    return path;
}

template <>
std::FILE* xfopen<char>(const std::string& path) {
    return std::fopen(path.c_str(), "a");
}
