#include <QRegularExpression>
#include <QSet>

#include "content.h"
#include "text.h"

namespace {

// What a line may be: a comment, a group's header, or a key with its value. The categories are those of
// freedesktop.org, Desktop Menu 1.1, "Registered Categories".
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

bool Matches(const QString& text, const QString& pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

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
