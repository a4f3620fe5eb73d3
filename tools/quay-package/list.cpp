#include "commands.h"
#include "files.h"
#include "text.h"
#include "zip.h"

Error RunList(const CommandLine& line, Report& report) {
    QFile file;
    std::vector<Entry> entries;
    Error error = OpenFile(line.Operand(), true, file);
    error = error ? error : ReadDirectory(file, entries, report.findings);
    QJsonArray array;
    std::int64_t bytes = 0;
    for (const Entry& entry : entries) {
        const char* const types[] = {"file", "folder", "link"};
        const QString type = QString::fromLatin1(types[static_cast<int>(entry.kind)]);
        const bool isLink = entry.kind == Kind::Link;
        bytes += entry.size;
        report.Say(
            QStringLiteral("%1 %2 %3  ").arg(type, -8).arg(Q(Octal(entry.mode))).arg(entry.size, 12).toStdString() +
            Printable(entry.path + (isLink ? " -> " + entry.target : "")));
        if (report.isJson()) {
            array.append(QJsonObject{
                {QStringLiteral("path"), Q(entry.path)},
                {QStringLiteral("type"), type},
                {QStringLiteral("mode"), Q(Octal(entry.mode))},
                {QStringLiteral("size"), static_cast<double>(entry.size)},
                {QStringLiteral("target"), isLink ? QJsonValue(Q(entry.target)) : QJsonValue()},
            });
        }
    }
    report.Set("operand", line.Operand());
    report.Set("entries", array);
    report.Set("bytes", bytes);
    report.Sum(std::to_string(entries.size()) + " entries, " + SizeText(bytes));
    return error;
}
