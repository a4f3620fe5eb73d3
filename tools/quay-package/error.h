// What keeps the tool from its work.
#pragma once

#include <string>
#include <utility>

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
