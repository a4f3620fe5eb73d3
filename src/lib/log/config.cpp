#include "log/config.h"

#include <sys/stat.h>

#include <cstdio>
#include <locale>
#include <sstream>

#include "posix/handles.h"

namespace {

constexpr std::size_t kLineBuffer = 8192;

// Whether the path leads to what may keep a reader waiting, or reading, without an end: a FIFO, a device.
bool IsEndless(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && (S_ISFIFO(info.st_mode) || S_ISCHR(info.st_mode));
}

char* SkipWhile(bool (*test)(unsigned char), char* at) {
    while (test(static_cast<unsigned char>(*at))) {
        ++at;
    }
    return at;
}

}  // namespace

bool Config::is_space(unsigned char byte) {
    return (byte >= 0x09 && byte <= 0x0D) || byte == 0x20;
}

bool Config::is_key_char(unsigned char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           byte == '-' || byte == '_' || byte == '.';
}

bool Config::is_value_char(unsigned char byte) {
    return byte >= 0x20 && byte != 0x7F;
}

int Config::read(const std::string& path) {
    if (path.empty() || IsEndless(path)) {
        return -1;
    }
    const File file(std::fopen(path.c_str(), "r"));
    if (!file) {
        return -1;
    }
    char line[kLineBuffer];
    std::string key;
    std::string value;
    while (std::fgets(line, sizeof(line), file.get()) != nullptr) {
        const int result = parse(line, key, value);
        if (result == PARSE_MALFORMED) {
            // Deliberately everything, entries of an earlier read too: half a file would raise the levels of some
            // components and not of others.
            entries_.clear();
            return -1;
        }
        if (result == PARSE_ENTRY) {
            entries_[key] = value;
        }
    }
    return 0;
}

int Config::parse(char* line, std::string& key, std::string& value) const {
    char* const key_start = SkipWhile(is_space, line);
    char* const key_end = SkipWhile(is_key_char, key_start);
    // Deliberately ahead of the blanks: "key#..." is a comment and a key that ends the text is nothing, while "key "
    // is malformed. What depends on it: a last line without a line feed doesn't spoil the file.
    if (*key_end == '#' || *key_end == '\0') {
        return PARSE_NOTHING;
    }
    char* at = SkipWhile(is_space, key_end);
    if (*at != '=') {
        return PARSE_MALFORMED;
    }
    at = SkipWhile(is_space, at + 1);
    if (*at == '\0') {
        return PARSE_MALFORMED;
    }

    const bool quoted = *at == '"' || *at == '\'';
    const char quote = quoted ? *at++ : ' ';
    char* const value_start = at;
    while (is_value_char(static_cast<unsigned char>(*at)) && *at != quote) {
        ++at;
    }
    char* const value_end = at;
    if (quoted && *at++ != quote) {
        return PARSE_MALFORMED;
    }
    at = SkipWhile(is_space, at);
    if (*at != '\0' && *at != '#') {
        return PARSE_MALFORMED;
    }

    *key_end = '\0';
    *value_end = '\0';
    key = key_start;
    value = value_start;
    if (keep_quotes && quoted) {
        value = quote + value + quote;
    }
    return PARSE_ENTRY;
}

int Config::get_int(const std::string& key) {
    std::stringstream text;
    text.imbue(std::locale::classic());
    text << entries_[key];
    // Where extraction finds no number it stores 0, and the nearest int where it finds one that is out of range.
    int number = 0;
    text >> number;
    return number;
}
