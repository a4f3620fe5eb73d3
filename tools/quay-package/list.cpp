#include <sys/stat.h>

#include <QJsonDocument>
#include <array>
#include <cstdio>

#include "archive-reader.h"
#include "command.h"
#include "interruption.h"
#include "names.h"
#include "report.h"

namespace {

constexpr char kCommand[] = "list";

const char* TypeName(const Entry& entry) {
    if (entry.isHardLink) {
        return "hardlink";
    }
    switch (entry.type) {
        case S_IFREG: return "file";
        case S_IFDIR: return "folder";
        case S_IFLNK: return "link";
        default: return "special";
    }
}

void PrintEntry(const Entry& entry) {
    std::array<char, 64> front = {};
    std::snprintf(front.data(), front.size(), "%-8s %s %12lld  ", TypeName(entry), Octal(entry.mode).c_str(),
                  static_cast<long long>(entry.size < 0 ? 0 : entry.size));
    PrintLine(front.data() + Printable(entry.path) + (entry.link.empty() ? "" : " -> " + Printable(entry.link)));
}

QJsonObject ToJson(const Entry& entry) {
    QJsonObject object = {
        {QStringLiteral("path"), Q(entry.path)},
        {QStringLiteral("type"), QString::fromLatin1(TypeName(entry))},
        {QStringLiteral("mode"), Q(Octal(entry.mode))},
        {QStringLiteral("size"), static_cast<double>(entry.size)},
    };
    if (!entry.link.empty()) {
        object.insert(QStringLiteral("target"), Q(entry.link));
    }
    return object;
}

// Prints as it reads, so that a long list needs no memory; a damage is known only behind what is good.
class Listing {
public:
    explicit Listing(bool json) : json_(json) {}

    void Begin() const {
        if (json_) {
            PrintLine("{\n\"command\": \"list\",\n\"entries\": [");
        }
    }
    void Add(const Entry& entry) {
        if (json_) {
            const std::string text = QJsonDocument(ToJson(entry)).toJson(QJsonDocument::Compact).toStdString();
            Print((count_ == 0 ? "" : ",\n") + text);
        } else {
            PrintEntry(entry);
        }
        ++count_;
        bytes_ += entry.type == S_IFREG && entry.size > 0 ? entry.size : 0;
    }
    int End(const ArchiveReader& reader, bool good) const {
        if (!good) {
            std::fprintf(stderr, "quay-package list: damaged behind %lld entries: %s\n", static_cast<long long>(count_),
                         reader.error().c_str());
        }
        if (json_) {
            const QJsonObject rest = {
                {QStringLiteral("format"), Q(reader.FormatText())},
                {QStringLiteral("count"), static_cast<double>(count_)},
                {QStringLiteral("bytes"), static_cast<double>(bytes_)},
                {QStringLiteral("error"), good ? QString() : QString::fromStdString(reader.error())},
                {QStringLiteral("result"), good ? QStringLiteral("good") : QStringLiteral("defects")},
            };
            // The object goes on behind the array: without its opening brace.
            PrintLine("\n]," + QJsonDocument(rest).toJson(QJsonDocument::Compact).toStdString().substr(1));
        } else {
            PrintLine(std::to_string(count_) + " entries, " + SizeText(bytes_) + " (" + reader.FormatText() + ")");
        }
        return good ? kExitGood : kExitDefects;
    }

private:
    const bool json_;
    std::int64_t count_ = 0;
    std::int64_t bytes_ = 0;
};

}  // namespace

int RunList(const QStringList& arguments) {
    CommandLine line(kCommand, "Lists a package's entries in their order: type, mode, bytes, name.", "KPK",
                     "The package.");
    if (!line.Parse(arguments, {})) {
        return line.exitCode();
    }
    ArchiveReader reader;
    if (!reader.Open(line.Operand())) {
        return Fail(kCommand, line.isJson(), line.Operand() + ": " + reader.error());
    }
    Listing listing(line.isJson());
    listing.Begin();
    Entry entry;
    ArchiveReader::Result result = ArchiveReader::Header;
    while ((result = reader.Next(entry)) == ArchiveReader::Header) {
        if (IsInterrupted()) {
            EndInterrupted();
        }
        listing.Add(entry);
    }
    return listing.End(reader, result == ArchiveReader::End);
}
