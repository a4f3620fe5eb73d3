#include "finding.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

std::string IdOf(Defect defect) {
    return "KQ" + std::to_string(static_cast<int>(defect));
}

const std::map<Defect, DefectTexts>& AllDefects() {
    static const std::map<Defect, DefectTexts> all = [] {
        std::map<Defect, DefectTexts> read;
        Q_INIT_RESOURCE(bundle_files);
        QFile document(QStringLiteral(":/bundle/findings.md"));
        const QByteArray text = document.open(QIODevice::ReadOnly) ? document.readAll() : QByteArray();
        const QRegularExpression row(QStringLiteral("^\\| KQ(\\d+) \\| (.+) \\| (.+) \\| (.+) \\|$"),
                                     QRegularExpression::MultilineOption);
        for (auto rows = row.globalMatch(QString::fromUtf8(text)); rows.hasNext();) {
            const QStringList cells = rows.next().capturedTexts();
            const auto defect = static_cast<Defect>(cells[1].toInt());
            read[defect] = {cells[2].toStdString(), cells[3].toStdString(), cells[4].toStdString()};
        }
        return read;
    }();
    return all;
}

void Findings::Add(Defect defect, const std::string& entry, const std::string& detail) {
    const bool isAccepted = acceptable_.count({defect, ""}) != 0 || acceptable_.count({defect, entry}) != 0;
    Group& group = (isAccepted ? accepted_ : found_)[defect];
    if (++group.total <= most_) {
        group.kept.push_back({entry, detail});
    }
}

Error Findings::Accept(const std::string& text) {
    // Of what is wrong with a package only these neither keep a launcher from installing nor let it write where it
    // should not.
    static const std::set<Defect> harmless = {
        Defect::NameCase,   Defect::NameForm,       Defect::NameOutsideContents,      Defect::NameAppleDouble,
        Defect::NameLitter, Defect::NameBackslash,  Defect::ProgramWithoutExecuteBit, Defect::LinkDangling,
        Defect::LinkLoop,   Defect::InfoIncomplete, Defect::PropertyListMissing,      Defect::PropertyListWrong};
    const std::string id = text.substr(0, text.find('='));
    for (const auto& [defect, texts] : AllDefects()) {
        if (IdOf(defect) == id) {
            if (defect < Defect::BundleInfoMissing && harmless.count(defect) == 0) {
                return Error("--accept: " + id + " can't be accepted: the installation would fail or do harm");
            }
            acceptable_.insert({defect, text.substr(std::min(id.size() + 1, text.size()))});
            return {};
        }
    }
    return Error("--accept: there is no code \"" + id + "\"");
}

std::size_t Findings::Total() const {
    std::size_t total = 0;
    for (const auto& [defect, group] : found_) {
        total += group.total;
    }
    return total;
}
