// What keeps the tool from its work, and the defects that it finds.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "defects.h"

// Why an operation could not be carried out; empty where it was. Defects in what is looked at are no errors: they are
// Findings.
class [[nodiscard]] Error {
public:
    Error() = default;
    explicit Error(std::string text) : text_(std::move(text)) {}
    // "WHAT: " and the system's message for errno.
    static Error System(const std::string& what);

    explicit operator bool() const { return !text_.empty(); }
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

// "KQ" and the number.
std::string IdOf(Defect defect);

// What is told of a defect: a row of the document.
struct DefectTexts {
    std::string what;  // the defect in a few words
    std::string why;   // why it matters
    std::string mend;  // how to mend it
};

// The whole table.
const std::map<Defect, DefectTexts>& AllDefects();

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
        std::size_t total = 0;  // those that were not kept included
        std::vector<Finding> kept;
    };
    using Groups = std::map<Defect, Group>;

    void Add(Defect defect, const std::string& entry, const std::string& detail = {});

    // Takes "KQ404", or "KQ404=ENTRY" for that entry alone: what is added of it from now on counts as accepted, and no
    // more as a finding. What makes an installation fail or leave its folder can't be accepted: an error.
    Error Accept(const std::string& text);

    bool IsEmpty() const { return found_.empty(); }
    std::size_t Total() const;
    const Groups& found() const { return found_; }
    const Groups& accepted() const { return accepted_; }

private:
    std::size_t most_;  // that are kept of each
    Groups found_;
    Groups accepted_;
    std::set<std::pair<Defect, std::string>> acceptable_;  // an empty entry: any
};
