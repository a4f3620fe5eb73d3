#include "text/string-helper.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <ctime>
#include <iostream>
#include <sstream>
#include <vector>

namespace kelvanequay::utils {

namespace {

UNormalization2Mode MapNormalizationFormToUnrom(StringHelper::NormalizationForm form) {
    switch (form) {
        case StringHelper::NFC: return UNORM2_COMPOSE;
        case StringHelper::NFD: return UNORM2_DECOMPOSE;
    }
    return UNORM2_COMPOSE;
}

void Warn(const char* function, UErrorCode status, int line) {
    std::cerr << "Warning: " << function << ": error code " << static_cast<int>(status) << " at line " << line
              << std::endl;
}

// What ICU takes for the length of a zero-terminated text: every text here ends at its first zero character.
constexpr std::int32_t kZeroTerminated = -1;

}  // namespace

std::string StringHelper::ToPlatformDependString(const std::string& text) {
    return text;
}

std::string StringHelper::FromPlatformDependString(const std::string& text) {
    return text;
}

int StringHelper::ConvertWstringToString(const std::u16string& in, std::string& out) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strToUTF8(nullptr, 0, &length, in.c_str(), kZeroTerminated, &status);

    // A pass without a buffer reports an overflow; any other failure comes again in the pass with one.
    status = U_ZERO_ERROR;
    std::vector<char> buffer(static_cast<std::size_t>(length) + 1);
    u_strToUTF8(buffer.data(), length + 1, &length, in.c_str(), kZeroTerminated, &status);
    if (U_FAILURE(status)) {
        Warn("u_strToUTF8", status, __LINE__);
        return -1;
    }
    out.assign(buffer.data(), static_cast<std::size_t>(length));
    return 0;
}

int StringHelper::ConvertStringToWstring(const std::string& in, std::u16string& out) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, in.c_str(), kZeroTerminated, &status);

    status = U_ZERO_ERROR;
    std::vector<UChar> buffer(static_cast<std::size_t>(length) + 1);
    u_strFromUTF8(buffer.data(), length + 1, &length, in.c_str(), kZeroTerminated, &status);
    if (U_FAILURE(status)) {
        Warn("u_strFromUTF8", status, __LINE__);
        return -1;
    }
    out.assign(buffer.data(), static_cast<std::size_t>(length));
    return 0;
}

std::string StringHelper::Normalize(const std::string& text, NormalizationForm form) {
    if (text.empty()) {
        return "";
    }
    // Stays empty where the text is malformed, which has then been warned of: the result is "". Whoever compares paths
    // accepts that two malformed ones look equal.
    std::u16string wide;
    ConvertStringToWstring(text, wide);

    UErrorCode status = U_ZERO_ERROR;
    // ICU's name for both forms is "nfc"; the mode tells them apart. The instance is ICU's own.
    const UNormalizer2* normalizer = unorm2_getInstance(nullptr, "nfc", MapNormalizationFormToUnrom(form), &status);
    if (U_FAILURE(status) || normalizer == nullptr) {
        Warn("unorm2_getInstance", status, __LINE__);
        return "";
    }
    std::int32_t length = unorm2_normalize(normalizer, wide.c_str(), kZeroTerminated, nullptr, 0, &status);

    status = U_ZERO_ERROR;
    std::vector<UChar> buffer(static_cast<std::size_t>(length) + 1);
    length = unorm2_normalize(normalizer, wide.c_str(), kZeroTerminated, buffer.data(), length + 1, &status);
    if (U_FAILURE(status)) {
        Warn("unorm2_normalize", status, __LINE__);
        return "";
    }
    std::string normalized;
    ConvertWstringToString(std::u16string(buffer.data(), static_cast<std::size_t>(length)), normalized);
    return normalized;
}

bool StringHelper::IsValid(const std::string& text) {
    if (text.empty()) {
        return true;
    }
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, text.c_str(), kZeroTerminated, &status);
    // Without a buffer an overflow is what well-formed text gives.
    return status != U_INVALID_CHAR_FOUND;
}

void StringHelper::Rtrim(std::string& text, const std::string& chars) {
    const std::size_t last = text.find_last_not_of(chars);
    // A text of nothing but such characters stays as it is, deliberately.
    if (last != std::string::npos) {
        text.erase(last + 1);
    }
}

// The format is the caller's.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
std::string StringHelper::GetFormatTime(const char* format) {
    const std::time_t now = std::time(nullptr);
    char buffer[64];
    const std::size_t length = std::strftime(buffer, sizeof(buffer), format, std::localtime(&now));
    // strftime gives 0 for a text that does not fit, and the buffer then holds anything.
    return length == 0 ? "" : buffer;
}
#pragma GCC diagnostic pop

std::string StringHelper::Join(const std::list<std::string>& items, char separator) {
    std::string joined;
    for (auto item = items.begin(); item != items.end(); ++item) {
        if (item != items.begin()) {
            joined += separator;
        }
        joined += *item;
    }
    return joined;
}

void StringHelper::Split(std::list<std::string>& out, const std::string& text, char separator) {
    std::istringstream stream(text);
    std::string item;
    while (std::getline(stream, item, separator)) {
        out.push_back(item);
    }
}

}  // namespace kelvanequay::utils
