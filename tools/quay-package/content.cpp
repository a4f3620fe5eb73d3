#include "content.h"

#include <plist/plist.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>
#include <memory>

#include "text.h"

namespace {

// Numbers in a program's front; what lies behind its end is 0.
struct Numbers {
    const std::string& front;
    const std::uint64_t size;  // of the file
    const bool isBig;

    std::uint64_t At(std::uint64_t at, unsigned width) const {
        std::uint64_t value = 0;
        for (unsigned index = 0; index < width; ++index) {
            const std::uint64_t from = at + (isBig ? index : width - 1 - index);
            value = value << 8 | (from < front.size() ? static_cast<unsigned char>(front[from]) : 0U);
        }
        return value;
    }
    bool IsInFile(std::uint64_t from, std::uint64_t length) const { return from <= size && length <= size - from; }
    bool IsInFront(std::uint64_t from, std::uint64_t length) const {
        return from <= front.size() && length <= front.size() - from;
    }
};

// Header, program headers with something to load, what they load, and section headers lie within the file.
bool IsWholeElf(const std::string& front, std::uint64_t size) {
    const Numbers numbers{front, size, front.size() > 5 && front[5] == 2};
    const bool is64 = numbers.At(4, 1) == 2;
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
bool IsWholeMachO(const Numbers& numbers) {
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

// What a line of a desktop entry may be: a comment, a group's header, or a key with its value. The categories are those
// of freedesktop.org, Desktop Menu 1.1, "Registered Categories".
constexpr char kLine[] =
    R"((#.*)?|\[Desktop Entry\]|\[(Desktop Action |X-)[^\[\]]+\]|X-[A-Za-z0-9-]+(\[[\w.@-]+\])? *=.*|)"
    R"((Name|GenericName|Comment|Icon|Keywords)(\[[\w.@-]+\])? *=.*|)"
    R"((TryExec|Exec|Path|StartupWMClass|OnlyShowIn|NotShowIn|Actions|MimeType|Implements) *=.*|)"
    R"((NoDisplay|Hidden|DBusActivatable|Terminal|StartupNotify|PrefersNonDefaultGPU) *= *(true|false) *|)"
    R"(Type *= *Application *|Version *= *1\.[0-5] *|Categories *= *((X-[^;]+|AudioVideo|Audio|Video|Development|)"
    "Education|Game|Graphics|Network|Office|Science|Settings|System|Utility|Building|Debugger|IDE|GUIDesigner|"
    "Profiling|RevisionControl|Translation|Calendar|ContactManagement|Database|Dictionary|Chart|Email|Finance|"
    "FlowChart|PDA|ProjectManagement|Presentation|Spreadsheet|WordProcessor|2DGraphics|VectorGraphics|RasterGraphics|"
    "3DGraphics|Scanning|OCR|Photography|Publishing|Viewer|TextTools|DesktopSettings|HardwareSettings|Printing|"
    "PackageManager|Dialup|InstantMessaging|Chat|IRCClient|Feed|FileTransfer|HamRadio|News|P2P|RemoteAccess|Telephony|"
    "TelephonyTools|VideoConference|WebBrowser|WebDevelopment|Midi|Mixer|Sequencer|Tuner|TV|AudioVideoEditing|Player|"
    "Recorder|DiscBurning|Music|Languages|Astronomy|Geography|Maps|Security|Accessibility|Archiving|Compression|"
    "Electronics|Emulator|Engineering|FileTools|FileManager|TerminalEmulator|Filesystem|Monitor|Calculator|Clock|"
    "TextEditor|Documentation|Core|KDE|GNOME|XFCE|GTK|Qt|Motif|Java|ConsoleOnly)(;|$))*";

// An argument of a command, in quotes or without.
constexpr char kArgument[] = R"(("([^"`$\\%]|\\["`$\\]|%[fFuUick%])*"|([^ \t\n"'\\><~|&;$*?#()`%]|%[fFuUick%])+))";

// The program of a command, or an empty text if it breaks the rules of quoting or of field codes.
QString ProgramOf(QString command) {
    const QString argument = QString::fromLatin1(kArgument);
    command = command.trimmed().replace(QLatin1String("\\\\"), QLatin1String("\\"));  // the format's own escape
    if (!Matches(command, argument + QStringLiteral("( +") + argument + QStringLiteral(")*")) ||
        QString(command).remove(QLatin1String("%%")).count(QRegularExpression(QStringLiteral("%[fFuU]"))) > 1) {
        return {};
    }
    const QString first = QRegularExpression(argument).match(command).captured(0);
    return first.startsWith(QLatin1Char('"'))
               ? first.mid(1, first.size() - 2)
                     .replace(QRegularExpression(QStringLiteral(R"(\\(.))")), QStringLiteral("\\1"))
               : first;
}

}  // namespace

Program Recognise(const std::string& front, std::int64_t bytes) {
    const auto size = static_cast<std::uint64_t>(bytes);
    const auto ifWhole = [](bool isWhole, Program program) { return isWhole ? program : Program::Broken; };
    const Numbers big{front, size, true};
    const Numbers little{front, size, false};  // as have all processors that are left
    if (front.compare(0, 2, "#!") == 0) {
        return ifWhole(IsScript(front), Program::Script);
    }
    if (big.At(0, 4) == 0x7f454c46) {
        return ifWhole(IsWholeElf(front, size), Program::Elf);
    }
    if (big.At(0, 4) == 0xcafebabe) {
        return ifWhole(IsWholeFat(big), Program::MachO);
    }
    return little.At(0, 4) == 0xfeedfacf ? ifWhole(IsWholeMachO(little), Program::MachO) : Program::None;
}

std::string ExecutableOf(const std::string& propertyList) {
    plist_t list = nullptr;
    plist_from_memory(propertyList.data(), static_cast<std::uint32_t>(propertyList.size()), &list);
    const std::unique_ptr<void, decltype(&plist_free)> owner(list, plist_free);
    const bool isDictionary = list != nullptr && plist_get_node_type(list) == PLIST_DICT;
    plist_t item = isDictionary ? plist_dict_get_item(list, "CFBundleExecutable") : nullptr;
    std::uint64_t length = 0;
    const bool isText = item != nullptr && plist_get_node_type(item) == PLIST_STRING;
    const char* text = isText ? plist_get_string_ptr(item, &length) : "";
    return std::string(text, length);
}

bool IsIcon(const std::string& bytes) {
    constexpr int largest = 4096;  // a side's length; what is larger is not even decoded
    QByteArray data = QByteArray::fromStdString(bytes);
    QBuffer buffer(&data);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    return size.isValid() && size.width() <= largest && size.height() <= largest && !reader.read().isNull();
}

std::string DesktopEntryFault(const std::string& bytes, const std::string& program) {
    if (!IsUtf8(bytes)) {
        return "it is not UTF-8";
    }
    QSet<QString> seen;  // groups, and keys with their groups
    QString group;
    for (const QString& line : QString::fromStdString(bytes).split(QLatin1Char('\n'))) {
        const bool isHeader = line.startsWith(QLatin1Char('['));
        const bool isKey = !line.isEmpty() && !isHeader && !line.startsWith(QLatin1Char('#'));
        const bool isInPlace =
            isHeader ? group.isEmpty() == (line == QLatin1String("[Desktop Entry]")) : !isKey || !group.isEmpty();
        group = isHeader ? line : group;
        const QString key = line.section(QLatin1Char('='), 0, 0).trimmed();
        const QString place = group + (isKey ? key : QString());
        if (!isInPlace || ((isKey || isHeader) && seen.contains(place)) ||
            !Matches(line,
                     group.startsWith(QLatin1String("[X-")) ? QStringLiteral(".*") : QString::fromLatin1(kLine))) {
            return "the line \"" + line.toStdString() + "\" has no place there";
        }
        seen.insert(place);
        const QString starts = key == QLatin1String("Exec") ? ProgramOf(line.section(QLatin1Char('='), 1)) : QString();
        if (key == QLatin1String("Exec") &&
            (!starts.startsWith(QLatin1Char('/')) || !starts.endsWith(QString::fromStdString("/" + program)))) {
            return "it starts \"" + starts.toStdString() + "\"";
        }
    }
    for (const char* key : {"Type", "Name", "Exec"}) {
        if (!seen.contains(QLatin1String("[Desktop Entry]") + QLatin1String(key))) {
            return std::string("it has no ") + key;
        }
    }
    return {};
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
    const int number = QString::fromStdString(text).toInt();
    return number > 0 && std::to_string(number) == text;
}
