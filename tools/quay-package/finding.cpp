#include "finding.h"

#include <algorithm>

std::string IdOf(const Defect& defect) {
    return "KQ" + std::to_string(defect.code);
}

void Findings::Add(const Defect& defect, const std::string& entry, const std::string& detail) {
    const bool isAccepted = acceptable_.count({defect.code, ""}) != 0 || acceptable_.count({defect.code, entry}) != 0;
    Group& group = (isAccepted ? accepted_ : found_)[defect.code];
    group.defect = &defect;
    if (++group.total <= most_) {
        group.kept.push_back({entry, detail});
    }
}

Error Findings::Accept(const std::string& text) {
    // Below 600 only these neither keep a launcher from installing nor let it write where it should not.
    constexpr auto harmless = defects::Pointers(
        defects::NameCase, defects::NameForm, defects::NameOutsideContents, defects::NameAppleDouble,
        defects::NameLitter, defects::NameBackslash, defects::ProgramWithoutExecuteBit, defects::LinkDangling,
        defects::LinkLoop, defects::InfoIncomplete, defects::PropertyListMissing, defects::PropertyListWrong);
    const std::string id = text.substr(0, text.find('='));
    const auto isMeant = [&id](const Defect* defect) { return IdOf(*defect) == id; };
    const auto known = std::find_if(defects::kAll.begin(), defects::kAll.end(), isMeant);
    if (known == defects::kAll.end()) {
        return Error("--accept: there is no code \"" + id + "\"");
    }
    if ((*known)->code < 600 && std::none_of(harmless.begin(), harmless.end(), isMeant)) {
        return Error("--accept: " + id + " can't be accepted: the installation would fail or do harm");
    }
    acceptable_.insert({(*known)->code, text.substr(std::min(id.size() + 1, text.size()))});
    return {};
}

std::size_t Findings::Total() const {
    std::size_t total = 0;
    for (const auto& [code, group] : found_) {
        total += group.total;
    }
    return total;
}
