// UTF-8 strings: conversion to and from UTF-16, Unicode normalisation and a few utilities.
#pragma once

#include <list>
#include <string>

namespace kelvanequay::utils {

// A class of static functions without state: any thread may call any of them, except that GetFormatTime shares the
// buffer of localtime(3). Warnings go to the standard error stream, not to the log. Source: ICU's common library.
class StringHelper {
public:
    // The values are ICU's UNORM2_COMPOSE and UNORM2_DECOMPOSE.
    enum NormalizationForm : int {
        NFC = 0,
        NFD = 1,
    };

    // A copy of the argument: the text of a path is UTF-8 on every platform of ours.
    static std::string ToPlatformDependString(const std::string& text);
    static std::string FromPlatformDependString(const std::string& text);

    // UTF-16 to UTF-8, up to the first zero character. 0, or -1 with a warning and `out` as it was: the text is not
    // well-formed (a lone surrogate). Source: u_strToUTF8.
    static int ConvertWstringToString(const std::u16string& in, std::string& out);

    // UTF-8 to UTF-16, up to the first zero byte. 0, or -1 with a warning and `out` as it was: the text is not
    // well-formed. Source: u_strFromUTF8.
    static int ConvertStringToWstring(const std::string& in, std::u16string& out);

    // `text`, which is UTF-8, up to its first zero byte, in the given form; a form of no such value counts as NFC. ""
    // stands for a failure as well, with a warning; malformed UTF-8 is one. Source: unorm2_normalize.
    static std::string Normalize(const std::string& text, NormalizationForm form);

    // Whether the text, up to its first zero byte, is well-formed UTF-8. Empty text is.
    static bool IsValid(const std::string& text);

    // Removes all trailing characters (bytes) that stand in `chars`. A text of nothing but such characters stays.
    static void Rtrim(std::string& text, const std::string& chars);

    // The current local time in a format of strftime(3), up to its first zero byte. "" if it has more than 63 bytes.
    // Main thread only, or where nobody else calls localtime(3).
    static std::string GetFormatTime(const char* format);

    // The items with the separator between each two. "" for an empty list.
    static std::string Join(const std::list<std::string>& items, char separator);

    // Appends the items of `text` to `out`, which is not cleared. Empty items count, except one behind a final
    // separator; an empty text has no item.
    static void Split(std::list<std::string>& out, const std::string& text, char separator);
};

}  // namespace kelvanequay::utils
