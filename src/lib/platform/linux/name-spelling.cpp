#include "platform/linux/name-spelling.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/unorm.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace platform {

namespace {

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool IsAsciiLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// Bit 0x20 is what the two cases of an ASCII letter differ in.
char LowerAscii(char byte) {
    return IsAsciiLetter(byte) ? static_cast<char>(byte | 0x20) : byte;
}

// The text as UTF-16. No value if it is not well-formed UTF-8.
std::optional<icu::UnicodeString> ReadUtf8(std::string_view text) {
    icu::UnicodeString out;
    const auto capacity = static_cast<std::int32_t>(text.size());  // UTF-16 never takes more units than UTF-8 bytes
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(out.getBuffer(capacity), capacity, &length, text.data(), capacity, &status);
    out.releaseBuffer(U_SUCCESS(status) ? length : 0);
    return U_SUCCESS(status) ? std::make_optional(std::move(out)) : std::nullopt;
}

std::string WriteUtf8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
}

bool SwapAsciiCase(std::string& name) {
    bool swapped = false;
    for (char& byte : name) {
        if (IsAsciiLetter(byte)) {
            byte = static_cast<char>(byte ^ 0x20);
            swapped = true;
        }
    }
    return swapped;
}

bool SwapCaseOfOne(icu::UnicodeString& name) {
    for (std::int32_t at = 0; at < name.length(); at = name.moveIndex32(at, 1)) {
        const UChar32 point = name.char32At(at);
        const UChar32 upper = u_toupper(point);
        const UChar32 lower = u_tolower(point);
        const UChar32 other = upper != point ? upper : lower;
        const UChar32 back = upper != point ? u_tolower(other) : u_toupper(other);
        if (other != point && back == point) {
            name.replace(at, U16_LENGTH(point), other);
            return true;
        }
    }
    return false;
}

// The name composed or, if it is that already, decomposed.
icu::UnicodeString OtherForm(const icu::UnicodeString& name) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* composer = icu::Normalizer2::getNFCInstance(status);
    const icu::Normalizer2* decomposer = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) {
        return name;
    }
    icu::UnicodeString other = composer->normalize(name, status);
    if (other == name) {
        other = decomposer->normalize(name, status);
    }
    return U_FAILURE(status) ? name : other;
}

bool DifferInCaseAlone(const icu::UnicodeString& left, const icu::UnicodeString& right) {
    if (left.length() != right.length()) {
        return false;
    }
    for (std::int32_t at = 0; at < left.length(); at = left.moveIndex32(at, 1)) {
        if (u_foldCase(left.char32At(at), U_FOLD_CASE_DEFAULT) != u_foldCase(right.char32At(at), U_FOLD_CASE_DEFAULT)) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::vector<std::string> OtherSpellings(const std::string& name) {
    std::vector<std::string> others;
    std::string swapped = name;
    const bool hasAsciiLetter = SwapAsciiCase(swapped);
    if (hasAsciiLetter) {
        others.push_back(std::move(swapped));
    }
    const std::optional<icu::UnicodeString> text = IsAscii(name) ? std::nullopt : ReadUtf8(name);
    if (!text) {
        return others;
    }
    if (icu::UnicodeString other = *text; !hasAsciiLetter && SwapCaseOfOne(other)) {
        others.push_back(WriteUtf8(other));
    }
    if (const icu::UnicodeString other = OtherForm(*text); other != *text) {
        others.push_back(WriteUtf8(other));
    }
    return others;
}

Likeness CompareNames(const std::string& left, const std::string& right) {
    const bool areAscii = IsAscii(left) && IsAscii(right);
    const std::optional<icu::UnicodeString> leftText = areAscii ? std::nullopt : ReadUtf8(left);
    const std::optional<icu::UnicodeString> rightText = areAscii ? std::nullopt : ReadUtf8(right);
    if (!leftText || !rightText) {
        const bool isSame = std::equal(left.begin(), left.end(), right.begin(), right.end(),
                                       [](char one, char other) { return LowerAscii(one) == LowerAscii(other); });
        return isSame ? Likeness::Case : Likeness::None;
    }
    if (DifferInCaseAlone(*leftText, *rightText)) {
        return Likeness::Case;
    }
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t order = unorm_compare(leftText->getBuffer(), leftText->length(), rightText->getBuffer(),
                                             rightText->length(), U_COMPARE_IGNORE_CASE, &status);
    return U_SUCCESS(status) && order == 0 ? Likeness::Form : Likeness::None;
}

}  // namespace platform
