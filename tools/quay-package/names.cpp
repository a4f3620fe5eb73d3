#include "names.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <deque>

#include "text/string-helper.h"

using kelvanequay::utils::StringHelper;

namespace {

// A name's limit on every file system of ours, and macOS's PATH_MAX without the zero byte.
constexpr std::size_t kLongestName = 255;
constexpr std::size_t kLongestPath = 1023;

// Room for the home folder and the application folder in front of an entry.
constexpr std::size_t kRoomForHome = 200;

// Links that a system follows in one lookup, at the least (macOS has 32, Linux 40).
constexpr int kMostLinks = 32;

bool IsAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool IsControl(char byte) {
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7f;
}

// The length of the UTF-8 sequence that the byte begins, by its upper bits; 0 for a byte that begins none.
std::size_t SequenceLength(unsigned char first) {
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xc2 && first < 0xe0) {
        return 2;
    }
    if (first >= 0xe0 && first < 0xf0) {
        return 3;
    }
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

void AppendEscaped(std::string& out, char byte) {
    static constexpr char digits[] = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    out += "\\x";
    out += digits[value >> 4];
    out += digits[value & 15];
}

std::string CaseFolded(const std::string& text) {
    std::u16string wide;
    if (StringHelper::ConvertStringToWstring(text, wide) != 0) {
        return text;
    }
    // Folding makes a text up to three times as long.
    std::u16string folded(wide.size() * 3 + 1, u'\0');
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t length = u_strFoldCase(folded.data(), static_cast<std::int32_t>(folded.size()), wide.data(),
                                              static_cast<std::int32_t>(wide.size()), U_FOLD_CASE_DEFAULT, &error);
    if (U_FAILURE(error) != 0) {
        return text;
    }
    folded.resize(static_cast<std::size_t>(length));
    std::string narrow;
    return StringHelper::ConvertWstringToString(folded, narrow) == 0 ? narrow : text;
}

}  // namespace

std::string Printable(const std::string& bytes) {
    std::string out;
    for (std::size_t at = 0; at < bytes.size();) {
        const char byte = bytes[at];
        const std::size_t length = SequenceLength(static_cast<unsigned char>(byte));
        if (byte == '\\') {
            out += "\\\\";
            ++at;
        } else if (length == 0 || IsControl(byte) || at + length > bytes.size() ||
                   !StringHelper::IsValid(bytes.substr(at, length))) {
            AppendEscaped(out, byte);
            ++at;
        } else {
            out.append(bytes, at, length);
            at += length;
        }
    }
    return out;
}

std::string FoldedName(const std::string& name) {
    if (IsAscii(name)) {
        std::string folded = name;
        std::transform(folded.begin(), folded.end(), folded.begin(),
                       [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte; });
        return folded;
    }
    // Decomposed on both sides of the folding: a folded letter can come apart, a decomposed one can fold.
    const std::string decomposed = StringHelper::Normalize(name, StringHelper::NFD);
    return StringHelper::Normalize(CaseFolded(decomposed), StringHelper::NFD);
}

bool DifferInFormOnly(const std::string& left, const std::string& right) {
    return StringHelper::Normalize(left, StringHelper::NFC) == StringHelper::Normalize(right, StringHelper::NFC);
}

std::vector<std::string> Elements(const std::string& path) {
    std::vector<std::string> elements;
    std::size_t from = 0;
    for (std::size_t at = path.find('/'); at != std::string::npos; at = path.find('/', from)) {
        elements.push_back(path.substr(from, at - from));
        from = at + 1;
    }
    elements.push_back(path.substr(from));
    return elements;
}

bool IsAppleDouble(const std::string& path) {
    if (path.compare(0, 8, "__MACOSX") == 0 && (path.size() == 8 || path[8] == '/')) {
        return true;
    }
    const std::size_t name = path.rfind('/') + 1;  // npos + 1 is 0
    return path.compare(name, 2, "._") == 0 && path.size() > name + 2;
}

bool IsLitter(const std::string& element) {
    static const char* const names[] = {
        ".DS_Store", ".Spotlight-V100", ".Trashes",       ".fseventsd", ".directory", "Thumbs.db",  "desktop.ini",
        ".git",      ".gitignore",      ".gitattributes", ".svn",       ".hg",        ".gitmodules"};
    const auto isElement = [&element](const char* name) { return element == name; };
    if (std::any_of(std::begin(names), std::end(names), isElement)) {
        return true;
    }
    const auto endsIn = [&element](const std::string& end) {
        return element.size() > end.size() && element.compare(element.size() - end.size(), end.size(), end) == 0;
    };
    return endsIn("~") || endsIn(".swp") || endsIn(".orig") || endsIn(".rej");
}

void PathHash::Add(char byte) {
    value_ = (value_ ^ static_cast<unsigned char>(byte)) * 1099511628211U;
}

void PathHash::Add(const std::string& bytes) {
    for (const char byte : bytes) {
        Add(byte);
    }
}

std::uint64_t PathHash::Of(const std::string& bytes) {
    PathHash hash;
    hash.Add(bytes);
    return hash.value();
}

void CheckName(const std::string& path, Findings& findings) {
    if (!StringHelper::IsValid(path)) {
        findings.Add(Code::NameNotUtf8, path);
    } else if (!IsAscii(path) && StringHelper::Normalize(path, StringHelper::NFC) != path) {
        findings.Add(Code::NameNotComposed, path);
    }
    if (!path.empty() && path[0] == '/') {
        findings.Add(Code::NameAbsolute, path);
    }
    bool dotDot = false;
    bool odd = false;
    bool tooLong = path.size() + kRoomForHome > kLongestPath;
    const std::vector<std::string> elements = Elements(path);
    for (std::size_t at = 0; at < elements.size(); ++at) {
        const std::string& element = elements[at];
        dotDot = dotDot || element == "..";
        // The empty element in front of an absolute name is that finding's.
        odd = odd || element == "." || (element.empty() && (at > 0 || path.empty()));
        tooLong = tooLong || element.size() > kLongestName;
    }
    if (dotDot) {
        findings.Add(Code::NameDotDot, path);
    }
    if (odd) {
        findings.Add(Code::NameOddElement, path);
    }
    if (tooLong) {
        findings.Add(Code::NameTooLong, path, std::to_string(path.size()) + " bytes");
    }
    if (std::any_of(path.begin(), path.end(), IsControl)) {
        findings.Add(Code::NameControl, path);
    }
    if (path.find('\\') != std::string::npos) {
        findings.Add(Code::NameBackslash, path);
    }
    if (IsAppleDouble(path)) {
        findings.Add(Code::NameAppleDouble, path);
    } else if (elements.front() != "Contents" && elements.front() != "." && !path.empty() && path[0] != '/') {
        findings.Add(Code::NameOutsideContents, path);
    }
    if (IsLitter(elements.back())) {
        findings.Add(Code::NameLitter, path);
    }
}

namespace {

std::string JoinPath(const std::vector<std::string>& elements) {
    std::string path;
    for (const std::string& element : elements) {
        path += path.empty() ? element : "/" + element;
    }
    return path;
}

// Puts the target's elements in front of those that are still to walk.
void Prepend(const std::string& target, std::deque<std::string>& rest) {
    const std::vector<std::string> elements = Elements(target);
    rest.insert(rest.begin(), elements.begin(), elements.end());
}

}  // namespace

void CheckLink(const std::string& path, const std::string& target, const NodeLookup& lookup, Findings& findings) {
    const std::string detail = "it leads to \"" + Printable(target) + "\"";
    if (target.empty() || !StringHelper::IsValid(target)) {
        findings.Add(Code::LinkTargetOdd, path, detail);
        return;
    }
    if (target[0] == '/') {
        findings.Add(Code::LinkAbsolute, path, detail);
        return;
    }
    std::vector<std::string> here = Elements(path);
    here.pop_back();
    std::deque<std::string> rest;
    Prepend(target, rest);
    int links = 1;
    while (!rest.empty()) {
        const std::string element = rest.front();
        rest.pop_front();
        if (element.empty() || element == ".") {
            continue;
        }
        if (element == "..") {
            if (here.empty()) {
                findings.Add(Code::LinkLeaves, path, detail);
                return;
            }
            here.pop_back();
            continue;
        }
        here.push_back(element);
        std::string next;
        const NodeKind kind = lookup(JoinPath(here), next);
        if (kind == NodeKind::Link) {
            if (++links > kMostLinks) {
                findings.Add(Code::LinkLoop, path, detail);
                return;
            }
            if (!next.empty() && next[0] == '/') {
                findings.Add(Code::LinkLeaves, path, detail + ", and from there to \"" + Printable(next) + "\"");
                return;
            }
            here.pop_back();
            Prepend(next, rest);
        } else if (kind == NodeKind::Absent || (kind == NodeKind::Other && !rest.empty())) {
            findings.Add(Code::LinkDangling, path, detail);
            return;
        }
    }
}
