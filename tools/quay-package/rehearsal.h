// An installation into a folder of its own, by the launcher's own extractor.
#pragma once

#include <string>

#include "archive-check.h"
#include "finding.h"

// A fresh folder below the system's folder for temporary files, removed at the end. One thread.
class Scratch {
public:
    // With `keep` it stays.
    explicit Scratch(bool keep) : keep_(keep) {}
    ~Scratch() { Remove(); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    // False with errno set.
    bool Make();
    void Remove();
    const std::string& path() const { return path_; }

    // Bytes that are free on its volume.
    std::int64_t FreeBytes() const;

private:
    const bool keep_;
    std::string path_;
};

// The home that the rehearsal installs into.
std::string RehearsalHome(const Scratch& scratch);

// Unpacks the package as a start does, and compares what is on disk with the archive, entry by entry. `nodes` are the
// package's paths. True if the extractor succeeded; what it and the comparison found wrong is added either way. Ends
// the process, the scratch folder being removed, when it is interrupted.
bool Rehearse(const std::string& package, Scratch& scratch, NodeTable& nodes, Findings& findings);
