#include "commands.h"

#include <QJsonDocument>
#include <cstdio>

#include "text.h"

namespace {

// Raised when a key changes its meaning or goes.
constexpr int kSchema = 1;

// `front` says what became of the findings; where nothing did, it is said how to mend them.
void PrintGroups(const std::string& front, const Findings::Groups& groups) {
    for (const auto& [defect, group] : groups) {
        const DefectTexts& texts = AllDefects().at(defect);
        for (const Finding& finding : group.kept) {
            PrintLine(front + IdOf(defect) + "  " + (finding.entry.empty() ? "" : Printable(finding.entry) + ": ") +
                      texts.what + (finding.detail.empty() ? "" : " (" + Printable(finding.detail) + ")"));
        }
        if (group.total > group.kept.size()) {
            PrintLine("       and " + std::to_string(group.total - group.kept.size()) + " more of them");
        }
        if (front.empty()) {
            PrintLine("       why:  " + texts.why + "\n       mend: " + texts.mend);
        }
    }
}

}  // namespace

void PrintLine(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fputc('\n', stdout);
}

Report::Report(const char* command, const QStringList& keys, bool isJson) : command_(command), isJson_(isJson) {
    for (const QString& key : keys) {
        object_.insert(key, QJsonValue());
    }
}

void Report::Set(const char* key, const std::string& text) {
    Set(key, QJsonValue(Q(text)));
}

void Report::Set(const Package& package) {
    Set("entries", static_cast<std::int64_t>(package.entries.size()));
    Set("bytes", package.bytes);
    Set("package_versions", ToJson(package.versions));
}

int Report::Finish(const Error& error) {
    const int exitCode = error ? kExitError : findings.IsEmpty() ? kExitGood : kExitDefects;
    if (error) {
        std::fprintf(stderr, "quay-package %s: %s\n", command_, Printable(error.text()).c_str());
    }
    if (isJson_) {
        const char* const results[] = {"good", "defects", "error"};
        Set("schema", std::int64_t{kSchema});
        Set("command", std::string(command_));
        Set("result", std::string(results[exitCode]));
        Set("error", error ? QJsonValue(Q(error.text())) : QJsonValue());
        Set("count", static_cast<std::int64_t>(findings.Total()));
        Set("findings", ToJson(findings.found()));
        Set("accepted", ToJson(findings.accepted()));
        PrintLine(QJsonDocument(object_).toJson(QJsonDocument::Indented).trimmed().toStdString());
    } else if (!error) {
        for (const std::string& line : lines_) {
            PrintLine(line);
        }
        PrintGroups("mended ", mended.found());
        PrintGroups("accepted ", findings.accepted());
        PrintGroups("", findings.found());
        if (!sum_.empty()) {
            PrintLine(sum_);
        }
    }
    return exitCode;
}

QJsonObject ToJson(Defect defect) {
    const DefectTexts& texts = AllDefects().at(defect);
    return {{QStringLiteral("code"), Q(IdOf(defect))},
            {QStringLiteral("what"), QString::fromStdString(texts.what)},
            {QStringLiteral("why"), QString::fromStdString(texts.why)},
            {QStringLiteral("mend"), QString::fromStdString(texts.mend)}};
}

QJsonArray ToJson(const Findings::Groups& groups) {
    QJsonArray array;
    for (const auto& [defect, group] : groups) {
        for (const Finding& finding : group.kept) {
            QJsonObject object = ToJson(defect);
            object.insert(QStringLiteral("entry"), Q(finding.entry));
            object.insert(QStringLiteral("detail"), Q(finding.detail));
            array.append(object);
        }
    }
    return array;
}

QJsonObject ToJson(const VersionInfo& versions) {
    QJsonObject object;
    for (const VersionKey& key : kVersionKeys) {
        const std::optional<std::string>& value = versions.*key.field;
        object.insert(QString::fromLatin1(key.name).remove(QStringLiteral("_version")),
                      value ? QJsonValue(Q(*value)) : QJsonValue());
    }
    return object;
}

std::string Shown(const VersionInfo& versions) {
    return Printable("version " + versions.majorVersion.value_or("?") + "." + versions.minorVersion.value_or("?") +
                     ", build " + versions.buildVersion.value_or("unknown"));
}
