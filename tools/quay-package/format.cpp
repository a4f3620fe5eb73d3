#include "format.h"

#include <archive.h>

const std::vector<std::string>& FormatNames() {
    static const std::vector<std::string> names = {"zip", "tar.gz", "tar.xz", "tar.zst", "tar"};
    return names;
}

namespace {

int SetFormatAndFilter(archive* writer, const std::string& format) {
    if (format == "zip") {
        const int result = archive_write_set_format_zip(writer);
        return result == ARCHIVE_OK ? archive_write_set_format_option(writer, "zip", "hdrcharset", "UTF-8") : result;
    }
    // Extended headers where a name is long or outside ASCII, plain ones for all else.
    int result = archive_write_set_format_pax_restricted(writer);
    if (result == ARCHIVE_OK) {
        result = archive_write_set_format_option(writer, "pax", "hdrcharset", "UTF-8");
    }
    if (result == ARCHIVE_OK && format == "tar.gz") {
        result = archive_write_add_filter_gzip(writer);
        if (result == ARCHIVE_OK) {
            // gzip's own header carries the time of the packing otherwise.
            result = archive_write_set_filter_option(writer, "gzip", "timestamp", nullptr);
        }
    } else if (result == ARCHIVE_OK && format == "tar.xz") {
        result = archive_write_add_filter_xz(writer);
    } else if (result == ARCHIVE_OK && format == "tar.zst") {
        result = archive_write_add_filter_zstd(writer);
    }
    return result;
}

}  // namespace

std::string SetFormat(archive* writer, const std::string& format) {
    if (SetFormatAndFilter(writer, format) != ARCHIVE_OK) {
        const char* text = archive_error_string(writer);
        return text == nullptr ? "the archive library can't write " + format : text;
    }
    return {};
}

bool IsPackageFormat(archive* reader) {
    const int format = archive_format(reader) & ARCHIVE_FORMAT_BASE_MASK;
    if (format != ARCHIVE_FORMAT_ZIP && format != ARCHIVE_FORMAT_TAR) {
        return false;
    }
    switch (archive_filter_code(reader, 0)) {
        case ARCHIVE_FILTER_NONE:
        case ARCHIVE_FILTER_GZIP:
        case ARCHIVE_FILTER_XZ:
        case ARCHIVE_FILTER_ZSTD: return true;
        default: return false;
    }
}

std::string FormatText(archive* reader) {
    const char* format = archive_format_name(reader);
    std::string text = format == nullptr ? "unknown" : format;
    if (archive_filter_code(reader, 0) != ARCHIVE_FILTER_NONE) {
        text += std::string(", ") + archive_filter_name(reader, 0);
    }
    return text;
}
