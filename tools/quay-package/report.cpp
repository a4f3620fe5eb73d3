#include "report.h"

#include <QJsonDocument>
#include <cstdio>

#include "names.h"

void Print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void PrintLine(const std::string& text) {
    Print(text + "\n");
}

QString Q(const std::string& text) {
    return QString::fromStdString(Printable(text));
}

namespace {

// How many of a code's findings were only counted.
std::size_t NotKept(const Findings& findings, Code code) {
    const std::size_t count = findings.CountOf(code);
    return count > Findings::kKeptOfEachCode ? count - Findings::kKeptOfEachCode : 0;
}

// Whether the finding at `at` is the last of its code.
bool IsLastOfCode(const std::vector<Finding>& sorted, std::size_t at) {
    return at + 1 == sorted.size() || sorted[at + 1].code != sorted[at].code;
}

}  // namespace

void PrintFindings(const Findings& findings) {
    const std::vector<Finding> sorted = findings.Sorted();
    for (std::size_t at = 0; at < sorted.size(); ++at) {
        const Finding& finding = sorted[at];
        const CodeText& text = TextOf(finding.code);
        PrintLine(IdOf(finding.code) + "  " + (finding.entry.empty() ? "" : Printable(finding.entry) + ": ") +
                  text.what + (finding.detail.empty() ? "" : " (" + finding.detail + ")"));
        if (!IsLastOfCode(sorted, at)) {
            continue;
        }
        if (const std::size_t more = NotKept(findings, finding.code); more != 0) {
            PrintLine("       and " + std::to_string(more) + " more of them");
        }
        PrintLine(std::string("       why:  ") + text.why);
        PrintLine(std::string("       mend: ") + text.mend);
    }
}

void PrintMended(const Findings& mended) {
    const std::vector<Finding> sorted = mended.Sorted();
    for (std::size_t at = 0; at < sorted.size(); ++at) {
        const Finding& finding = sorted[at];
        PrintLine("mended " + IdOf(finding.code) + "  " + Printable(finding.entry) + ": " + finding.detail);
        const std::size_t more = NotKept(mended, finding.code);
        if (more != 0 && IsLastOfCode(sorted, at)) {
            PrintLine("       and " + std::to_string(more) + " more of them");
        }
    }
}

QJsonArray ToJson(const Findings& findings) {
    QJsonArray array;
    for (const Finding& finding : findings.Sorted()) {
        const CodeText& text = TextOf(finding.code);
        array.append(QJsonObject{
            {QStringLiteral("code"), Q(IdOf(finding.code))},
            {QStringLiteral("entry"), Q(finding.entry)},
            {QStringLiteral("detail"), QString::fromStdString(finding.detail)},
            {QStringLiteral("what"), QString::fromUtf8(text.what)},
            {QStringLiteral("why"), QString::fromUtf8(text.why)},
            {QStringLiteral("mend"), QString::fromUtf8(text.mend)},
        });
    }
    return array;
}

QJsonArray MendedToJson(const Findings& mended) {
    QJsonArray array;
    for (const Finding& finding : mended.Sorted()) {
        array.append(QJsonObject{{QStringLiteral("code"), Q(IdOf(finding.code))},
                                 {QStringLiteral("entry"), Q(finding.entry)},
                                 {QStringLiteral("detail"), QString::fromStdString(finding.detail)}});
    }
    return array;
}

QJsonObject ToJson(const Versions& versions) {
    return {
        {QStringLiteral("major"), Q(versions.majorVersion)},
        {QStringLiteral("minor"), Q(versions.minorVersion)},
        {QStringLiteral("build"), Q(versions.build)},
        {QStringLiteral("icon_overlay"), Q(versions.iconOverlay)},
    };
}

int PrintJson(const char* command, QJsonObject object, int exitCode) {
    object.insert(QStringLiteral("command"), QString::fromUtf8(command));
    object.insert(QStringLiteral("result"), exitCode == kExitGood      ? QStringLiteral("good")
                                            : exitCode == kExitDefects ? QStringLiteral("defects")
                                                                       : QStringLiteral("error"));
    Print(QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString());
    return exitCode;
}

std::string SizeText(std::int64_t bytes) {
    static const char* const units[] = {"bytes", "KiB", "MiB", "GiB", "TiB"};
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    while (value >= 1024 && unit + 1 < std::size(units)) {
        value /= 1024;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof(text), unit == 0 ? "%.0f %s" : "%.1f %s", value, units[unit]);
    return text;
}

std::string Octal(unsigned mode) {
    char text[16];
    std::snprintf(text, sizeof(text), "%04o", mode);
    return text;
}

int Fail(const char* command, bool json, const std::string& message) {
    std::fprintf(stderr, "quay-package %s: %s\n", command, message.c_str());
    if (json) {
        return PrintJson(command, {{QStringLiteral("error"), QString::fromStdString(message)}}, kExitError);
    }
    return kExitError;
}
