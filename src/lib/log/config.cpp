#include "log/config.h"

#include <sys/stat.h>

#include <cstdio>
#include <locale>
#include <sstream>

#include "posix/handles.h"

namespace {

constexpr std::size_t kLineBuffer = 8192;

// Whether the path leads to a FIFO or a device, where reading may wait, or go on, without an end.
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
            // Everything goes, entries of an earlier read too: with half a file some components would be at the level
            // that was asked for, and others not.
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
    // Before blanks are skipped, deliberately: "key#..." is a comment and "key" at the end of the text is nothing, but
    // "key " is malformed. So a last line that was cut short doesn't spoil the file.
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
    // Extraction stores 0 where there is no number, and the nearest int where the number is out of range.
    int number = 0;
    text >> number;
    return number;
}
