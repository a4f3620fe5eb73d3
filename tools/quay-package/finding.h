// Defects that were found.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "defects.h"
#include "error.h"

// "KQ" and the number.
std::string IdOf(const Defect& defect);

// One place of a defect. Texts are bytes as they were found: they are escaped where they are printed.
struct Finding {
    std::string entry;   // an entry of the package or a path; may be empty
    std::string detail;  // what was seen there; may be empty
};

// Findings by their defect, with no more than a fixed number kept of each, so that a package with one defect in each of
// its hundred thousand entries is told of in a page. One thread.
class Findings {
public:
    explicit Findings(std::size_t kept = 25) : most_(kept) {}

    struct Group {
        const Defect* defect = nullptr;
        std::size_t total = 0;  // those that were not kept included
        std::vector<Finding> kept;
    };
    using Groups = std::map<int, Group>;

    void Add(const Defect& defect, const std::string& entry, const std::string& detail = {});

    // Takes "KQ404", or "KQ404=ENTRY" for that entry alone: what is added of it from now on counts as accepted, and no
    // more as a finding. What makes an installation fail or leave its folder can't be accepted: an error.
    Error Accept(const std::string& text);

    bool IsEmpty() const { return found_.empty(); }
    std::size_t Total() const;
    bool Has(const Defect& defect) const { return found_.count(defect.code) != 0; }
    const Groups& found() const { return found_; }
    const Groups& accepted() const { return accepted_; }

private:
    std::size_t most_;  // that are kept of each
    Groups found_;
    Groups accepted_;
    std::set<std::pair<int, std::string>> acceptable_;  // an empty entry: any
};
