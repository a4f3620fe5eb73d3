#include "content.h"

#include <plist/plist.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTemporaryFile>
#include <algorithm>
#include <memory>

namespace {

// Numbers in a program's front; what lies behind its end is 0.
class Numbers {
public:
    Numbers(const std::string& front, std::int64_t size, bool isBig)
        : front_(front), size_(static_cast<std::uint64_t>(size)), isBig_(isBig) {}

    std::uint64_t At(std::uint64_t at, unsigned width) const {
        std::uint64_t value = 0;
        for (unsigned index = 0; index < width; ++index) {
            const std::uint64_t from = at + (isBig_ ? index : width - 1 - index);
            value = value << 8 | (from < front_.size() ? static_cast<unsigned char>(front_[from]) : 0U);
        }
        return value;
    }
    bool IsInFile(std::uint64_t from, std::uint64_t length) const { return from <= size_ && length <= size_ - from; }
    bool IsInFront(std::uint64_t from, std::uint64_t length) const {
        return from <= front_.size() && length <= front_.size() - from;
    }

private:
    const std::string& front_;
    const std::uint64_t size_;
    const bool isBig_;
};

// Header, program headers with something to load, what they load, and section headers lie within the file.
bool IsWholeElf(const std::string& front, std::int64_t size) {
    const bool is64 = Numbers(front, size, true).At(4, 1) == 2;
    const Numbers numbers(front, size, Numbers(front, size, true).At(5, 1) == 2);
    const unsigned width = is64 ? 8 : 4;
    const std::uint64_t type = numbers.At(16, 2);
    const std::uint64_t programs = numbers.At(is64 ? 32 : 28, width);
    const std::uint64_t each = is64 ? 56 : 32;
    const std::uint64_t count = numbers.At(is64 ? 56 : 44, 2);
    bool loads = false;
    bool isWhole = (type == 2 || type == 3) && numbers.IsInFront(programs, count * each) &&
                   numbers.At(is64 ? 54 : 42, 2) == each &&
                   numbers.IsInFile(numbers.At(is64 ? 40 : 32, width),
                                    numbers.At(is64 ? 60 : 48, 2) * numbers.At(is64 ? 58 : 46, 2));
    for (std::uint64_t at = programs; isWhole && at < programs + count * each; at += each) {
        loads = loads || numbers.At(at, 4) == 1;
        isWhole = numbers.IsInFile(numbers.At(at + width, width), numbers.At(at + 4UL * width, width));
    }
    return isWhole && loads;
}

constexpr std::uint64_t kMach64 = 0xfeedfacf;  // in the byte order of all processors that are left
constexpr std::uint64_t kFat = 0xcafebabe;

// The files for each kind of processor lie within the file.
bool IsWholeFat(const Numbers& numbers) {
    const std::uint64_t count = numbers.At(4, 4);
    bool isWhole = count > 0 && numbers.IsInFront(8, count * 20);
    for (std::uint64_t at = 8; isWhole && at < 8 + count * 20; at += 20) {
        isWhole = numbers.At(at + 12, 4) > 0 && numbers.IsInFile(numbers.At(at + 8, 4), numbers.At(at + 12, 4));
    }
    return isWhole;
}

// Load commands, and the segments that they name, lie within the file.
bool IsWholeMachO(const std::string& front, std::int64_t size) {
    const Numbers numbers(front, size, false);
    std::uint64_t at = 32;
    std::uint64_t left = numbers.At(16, 4);
    bool isWhole = numbers.At(12, 4) == 2 && left > 0 && numbers.IsInFront(at, numbers.At(20, 4));
    for (; isWhole && left > 0; --left) {
        const std::uint64_t length = numbers.At(at + 4, 4);
        isWhole = length >= 8 && numbers.IsInFront(at, length) &&
                  (numbers.At(at, 4) != 0x19 || numbers.IsInFile(numbers.At(at + 40, 8), numbers.At(at + 48, 8)));
        at += length;
    }
    return isWhole;
}

// "#!", blanks, an absolute path, and the line's end.
bool IsScript(const std::string& front) {
    const std::size_t path = front.find_first_not_of(" \t", 2);
    const std::size_t end = front.find_first_of(" \t\r\n", path);
    return end != std::string::npos && front[path] == '/' && end > path + 1 && front[end] != '\r' &&
           front.find('\n') != std::string::npos;
}

}  // namespace

bool BeginsAsProgram(const std::string& front) {
    const std::uint64_t magic = Numbers(front, 0, true).At(0, 4);
    return magic >> 16 == 0x2321 || magic == 0x7f454c46 || magic == kFat ||
           Numbers(front, 0, false).At(0, 4) == kMach64;
}

Program Recognise(const std::string& front, std::int64_t size) {
    if (!BeginsAsProgram(front)) {
        return Program::None;
    }
    if (front[0] == '#') {
        return IsScript(front) ? Program::Script : Program::None;
    }
    if (front[0] == 0x7f) {
        return IsWholeElf(front, size) ? Program::Elf : Program::None;
    }
    const bool isFat = front.compare(0, 1, "\xca") == 0;
    return (isFat ? IsWholeFat(Numbers(front, size, true)) : IsWholeMachO(front, size)) ? Program::MachO
                                                                                        : Program::None;
}

bool PropertyListValue(const std::string& bytes, const std::string& key, std::string& value) {
    plist_t list = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    const std::unique_ptr<void, decltype(&plist_free)> owner(list, plist_free);
    const bool isDictionary = list != nullptr && plist_get_node_type(list) == PLIST_DICT;
    plist_t item = isDictionary ? plist_dict_get_item(list, key.c_str()) : nullptr;
    if (item == nullptr || plist_get_node_type(item) != PLIST_STRING) {
        return false;
    }
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(item, &length);
    value.assign(text, length);
    return true;
}

bool IsIcon(const std::string& bytes) {
    constexpr int largest = 4096;  // a side's length; what is larger is not even decoded
    QByteArray data = QByteArray::fromStdString(bytes);
    QBuffer buffer(&data);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    return size.isValid() && size.width() <= largest && size.height() <= largest && !reader.read().isNull();
}

Error ReadVersions(const std::string& bytes, VersionInfo& versions) {
    QTemporaryFile file;
    if (!file.open() || file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0 || !file.flush()) {
        return Error(file.fileName().toStdString() + ": " + file.errorString().toStdString());
    }
    versions = ReadVersionInfo(file.fileName().toStdString());
    return {};
}

bool IsBuildNumber(const std::string& text) {
    bool isNumber = false;
    return QString::fromStdString(text).toInt(&isNumber) > 0 && isNumber && text[0] >= '1' && text[0] <= '9' &&
           text.find_first_not_of("0123456789") == std::string::npos;
}
