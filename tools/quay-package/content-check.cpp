#include "content-check.h"

#include <QXmlStreamReader>

#include "names.h"

bool IsMachO(const std::string& bytes) {
    // 32 and 64 bits in both byte orders, and the one that holds several architectures.
    for (const char* magic : {"\xfe\xed\xfa\xce", "\xfe\xed\xfa\xcf", "\xce\xfa\xed\xfe", "\xcf\xfa\xed\xfe",
                              "\xca\xfe\xba\xbe", "\xca\xfe\xba\xbf"}) {
        if (bytes.compare(0, 4, magic) == 0) {
            return true;
        }
    }
    return false;
}

bool LooksLikeProgram(const std::string& bytes) {
    return bytes.compare(0, 4,
                         "\x7f"
                         "ELF") == 0 ||
           bytes.compare(0, 2, "#!") == 0 || IsMachO(bytes);
}

bool IsPng(const std::string& bytes) {
    return bytes.compare(0, 8, "\x89PNG\r\n\x1a\n") == 0;
}

bool PropertyListValue(const std::string& bytes, const char* key, std::string& value) {
    QXmlStreamReader reader(QByteArray::fromStdString(bytes));
    bool isNext = false;
    bool found = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("key")) {
            isNext = reader.readElementText() == QLatin1String(key);
        } else if (isNext && reader.name() == QLatin1String("string")) {
            value = reader.readElementText().toStdString();
            found = true;
            isNext = false;
        } else {
            isNext = false;
        }
    }
    return found && !reader.hasError();
}

bool IsProgramPlace(const std::string& path) {
    constexpr char folder[] = "Contents/MacOS/";
    constexpr std::size_t length = sizeof(folder) - 1;
    return path.compare(0, length, folder) == 0 && path.find('/', length) == std::string::npos;
}

void CheckClientPropertyList(bool present, const std::string& bytes, const std::string& binary, Findings& findings) {
    constexpr char entry[] = "Contents/Info.plist";
    if (!present) {
        if (IsMachO(binary)) {
            findings.Add(Code::PropertyListMissing, entry);
        }
        return;
    }
    // A list in binary form begins so; what it says is not looked at.
    if (bytes.compare(0, 6, "bplist") == 0) {
        return;
    }
    std::string name;
    if (!PropertyListValue(bytes, "CFBundleExecutable", name)) {
        findings.Add(Code::PropertyListWrong, entry, "it has no CFBundleExecutable");
    } else if (name != "cloud-quay-ui") {
        findings.Add(Code::PropertyListWrong, entry, "it names \"" + Printable(name) + "\"");
    }
}
