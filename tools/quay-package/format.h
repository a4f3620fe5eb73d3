// The formats in which packages are written.
#pragma once

#include <string>
#include <vector>

struct archive;

// Names are those of the option --format: "zip", "tar.gz", "tar.xz", "tar.zst", "tar". The first is the default;
// docs/packaging.md has the measurements that chose it.
const std::vector<std::string>& FormatNames();

// Sets a new libarchive writer up for the format, so that the same entries give the same bytes at any time and place.
// An empty text, or what failed.
std::string SetFormat(archive* writer, const std::string& format);

// Whether libarchive's reader says that an archive is of one of these formats. Call after its first header.
bool IsPackageFormat(archive* reader);

// The format and the filter of an open archive, for people: "ZIP 2.0 (deflation)".
std::string FormatText(archive* reader);
