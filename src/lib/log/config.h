// Reader of small text files of key=value lines.
#pragma once

#include <map>
#include <string>

// The entries of a key=value file. Keys and values are byte strings of no particular encoding; keys are case-sensitive.
// One object belongs to one thread at a time.
//
// The syntax of a line, blanks (tab, line feed, vertical tab, form feed, carriage return, blank) being free between
// the parts:
//
//     key = value      # comment
//     key = "value"    # or in single quotes: may hold blanks, "#", "=" and the other quote; there is no escape
//
// One malformed line makes the whole file invalid.
class Config {
public:
    using Entries = std::map<std::string, std::string>;

    // What parse() makes of a line.
    enum ParseResult : int {
        PARSE_ENTRY = 0,      // a key and a value
        PARSE_NOTHING = 1,    // blank, comment, or a key that ends the text
        PARSE_MALFORMED = 2,  // none of these
    };

    // Adds the entries of the file at `path` (bytes as the file system takes them) to those already held; of two with
    // the same key the later one stands. 0 on success. -1 if the path is empty, leads to a FIFO or a device, or can't
    // be opened, with the entries as they were, or if a line is malformed, with no entry left at all. A line of more
    // than 8191 bytes is taken in pieces, each as a line of its own. Logs nothing. Source: fopen(3), fgets(3).
    int read(const std::string& path);

    // Parses one zero-terminated line in place: on PARSE_ENTRY the buffer is cut behind the key and the value, which
    // are written to `key` and `value`; on any other result both stay as they were.
    int parse(char* line, std::string& key, std::string& value) const;

    // The decimal int at the front of the key's value: 0 where there is none, the nearest int where it is out of range.
    // A key that is missing is in the map afterwards, with an empty value.
    int get_int(const std::string& key);

    // The value of a key. A key that is missing is in the map afterwards, with an empty value.
    std::string& operator[](const std::string& key) { return entries_[key]; }

    // The entries in byte-wise ascending order of their keys.
    Entries::const_iterator begin() const { return entries_.begin(); }
    Entries::const_iterator end() const { return entries_.end(); }

    static bool is_space(unsigned char byte);
    static bool is_key_char(unsigned char byte);
    static bool is_value_char(unsigned char byte);

    // Keep the quote characters of a quoted value. Nothing in the system sets it.
    bool keep_quotes = false;

private:
    Entries entries_;
};
