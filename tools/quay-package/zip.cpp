#include "zip.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

#include "checks.h"
#include "files.h"
#include "progress.h"
#include "text.h"

namespace {

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the structures below lie in memory as they lie in the file");

constexpr std::uint16_t kUnix = 3;  // who made it: the upper half of an entry's attributes is its mode
// An entry's mode stands nowhere but in the directory: a copy of its low byte, where the format has nothing, shows
// damage. Other packers write 0, or this.
constexpr unsigned kNoCopy = 0x80;
constexpr std::uint16_t kEncrypted = 1;
constexpr std::uint16_t kLevelBits = 6;  // how hard the packer tried
constexpr std::uint16_t kUtf8 = 0x800;
constexpr std::uint16_t kDeflated = 8;
constexpr std::uint64_t kManyEntries = 0xffff;  // from here on the end needs its large form

#pragma pack(push, 1)
struct LocalHeader {
    std::uint32_t signature = 0x04034b50;
    ZipForm form;
};
struct DirectoryHeader {
    std::uint32_t signature = 0x02014b50;
    std::uint16_t maker = kUnix << 8 | 20;
    ZipForm form;
    std::uint16_t comment = 0;  // length
    std::uint16_t disk = 0;
    std::uint16_t textual = 0;
    std::uint32_t attributes = 0;
    std::uint32_t offset = 0;
};
struct LargeEnd {
    std::uint32_t signature = 0x06064b50;
    std::uint64_t length = 44;
    std::uint16_t versions[2] = {kUnix << 8 | 45, 45};
    std::uint32_t disks[2] = {};
    std::uint64_t counts[2] = {};
    std::uint64_t size = 0;
    std::uint64_t offset = 0;
    std::uint32_t locator = 0x07064b50;
    std::uint32_t locatorDisk = 0;
    std::uint64_t here = 0;  // where this begins
    std::uint32_t allDisks = 1;
};
struct End {
    std::uint32_t signature = 0x06054b50;
    std::uint16_t disks[2] = {};
    std::uint16_t counts[2] = {};
    std::uint32_t size = 0;  // of the directory
    std::uint32_t offset = 0;
    std::uint16_t comment = 0;  // length
};
#pragma pack(pop)
static_assert(sizeof(LocalHeader) == 30 && sizeof(DirectoryHeader) == 46 && sizeof(LargeEnd) == 76 &&
              sizeof(End) == 22);

template <typename Part>
std::string_view Bytes(const Part& part) {
    return {reinterpret_cast<const char*>(&part), sizeof(part)};
}

// Reads what stands at a place; a text that is cut short comes back empty.
template <typename Part>
bool Take(QFile& file, qint64 at, Part& part) {
    return at >= 0 && file.seek(at) && file.read(reinterpret_cast<char*>(&part), sizeof(part)) == sizeof(part);
}

std::string TakeText(QFile& file, qint64 at, qint64 size) {
    const QByteArray text = file.seek(at) ? file.read(size) : QByteArray();
    return text.size() == size ? text.toStdString() : std::string();
}

uLong Sum(uLong before, std::string_view bytes) {
    return crc32_z(before, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size());
}

// The name as the archive has it.
std::string StoredName(const Entry& entry) {
    return entry.path + (entry.kind == Kind::Folder ? "/" : "");
}

// What stands behind a directory.
std::string EndOf(std::uint64_t count, std::uint64_t offset, std::uint64_t size, const std::uint16_t* versions) {
    End end;
    end.counts[0] = end.counts[1] = static_cast<std::uint16_t>(std::min(count, kManyEntries));
    end.size = static_cast<std::uint32_t>(size);
    end.offset = static_cast<std::uint32_t>(offset);
    LargeEnd large;
    std::copy(versions, versions + 2, large.versions);
    large.counts[0] = large.counts[1] = count;
    large.size = size;
    large.offset = offset;
    large.here = offset + size;
    return std::string(count < kManyEntries ? std::string_view() : Bytes(large)).append(Bytes(end));
}

// Times ("UT") and owners ("ux"), each with its length; anything else could say something other than the header.
bool HasKnownFields(const std::string& extra) {
    std::size_t at = 0;
    while (at + 4 <= extra.size()) {
        const std::string id = extra.substr(at, 2);
        if (id != "UT" && id != "ux") {
            return false;
        }
        at += 4U + qFromLittleEndian<quint16>(extra.data() + at + 2);
    }
    return at == extra.size();
}

class DirectoryReader {
public:
    DirectoryReader(QFile& file, std::vector<Entry>& entries, Findings& findings)
        : file_(file), entries_(entries), findings_(findings) {}

    Error Run() {
        if (!ReadEnd()) {
            return {};
        }
        entries_.reserve(std::min(count_, static_cast<std::uint64_t>(end_ - at_) / sizeof(DirectoryHeader)));
        Progress progress("looking", static_cast<std::int64_t>(count_));
        for (std::uint64_t left = count_; left > 0; --left) {
            if (Error error = progress.Advance(1); error || !ReadEntry()) {
                return error;
            }
        }
        if (at_ != end_ || next_ != directory_) {
            findings_.Add(Defect::Damaged, "", "something stands between its entries, its directory and its end");
        }
        return {};
    }

private:
    // The end tells where the directory is; it must tell that it fills the file up to itself.
    bool ReadEnd() {
        std::uint32_t begin = 0;
        End end;
        LargeEnd large;
        if (!Take(file_, 0, begin) || (begin != LocalHeader().signature && begin != End().signature)) {
            return Refuse(Defect::NoZip, "", "");
        }
        if (!Take(file_, file_.size() - qint64{sizeof(end)}, end) || end.signature != End().signature) {
            return Refuse(Defect::Damaged, "",
                          "it does not end with its directory: it is cut short, or something follows");
        }
        const bool isLarge = end.counts[1] == kManyEntries;
        if (isLarge) {
            Take(file_, file_.size() - qint64{sizeof(large) + sizeof(end)}, large);
        }
        count_ = isLarge ? large.counts[1] : end.counts[1];
        at_ = directory_ = end.offset;
        end_ = directory_ + end.size;
        const std::string expected = EndOf(count_, end.offset, end.size, large.versions);
        if (end_ + static_cast<qint64>(expected.size()) != file_.size() ||
            TakeText(file_, end_, static_cast<qint64>(expected.size())) != expected) {
            return Refuse(Defect::Damaged, "", "the end of its directory is wrong, or is one that pack does not write");
        }
        return CheckCount(count_, findings_);
    }

    bool ReadEntry() {
        DirectoryHeader header;
        const bool isThere = Take(file_, at_, header) && header.signature == DirectoryHeader().signature;
        at_ += qint64{sizeof(header)};
        const std::string rest = isThere ? TakeText(file_, at_, header.form.name + header.form.extra) : std::string();
        at_ += header.form.name + header.form.extra;
        if (!isThere || at_ > end_) {
            return Refuse(Defect::Damaged, "",
                          "its directory breaks off behind " + std::to_string(entries_.size()) + " entries");
        }
        Entry entry;
        entry.path = rest.substr(0, header.form.name);
        entry.size = header.form.size;
        entry.form = header.form;
        const bool endsInSlash = !entry.path.empty() && entry.path.back() == '/';
        const auto mode = static_cast<unsigned>(header.attributes >> 16);
        // A packer that tells no type means a file, or a folder where the name says so.
        entry.kind = (mode & S_IFMT) != 0 ? KindOf(mode) : endsInSlash ? Kind::Folder : Kind::File;
        entry.mode = mode & 07777;
        if (endsInSlash) {
            entry.path.pop_back();
        }
        const bool isGood = CheckForm(entry, header) && CompareFront(entry, header, rest.substr(header.form.name)) &&
                            (entry.kind != Kind::Link || ReadTarget(entry));
        if (isGood) {
            entries_.push_back(std::move(entry));
        }
        return isGood;
    }

    // What an entry of the directory says of itself.
    bool CheckForm(const Entry& entry, const DirectoryHeader& header) {
        const ZipForm& form = entry.form;
        const bool isFolder = entry.kind == Kind::Folder;
        const unsigned copy = header.attributes >> 8 & 0xff;
        const bool isPlain =
            header.maker >> 8 == kUnix && form.needed <= ZipForm().needed && header.comment == 0 && header.disk == 0 &&
            (form.flags & ~(kLevelBits | kUtf8)) == 0 && (IsAscii(entry.path) || (form.flags & kUtf8) != 0) &&
            (form.method == 0 ? form.packed == form.size : form.method == kDeflated && entry.kind == Kind::File) &&
            std::max({std::uint32_t{form.packed}, std::uint32_t{form.size}, std::uint32_t{header.offset}}) <
                kLargestPackage;
        // A folder is one by its name as well, and has no data; a mode is like its copy.
        const bool isConsistent = isFolder == (form.name > entry.path.size()) && (!isFolder || form.size == 0) &&
                                  (copy == 0 || copy == kNoCopy || copy == (entry.mode & 0xff)) &&
                                  entry.path.find('\0') == std::string::npos;
        if ((form.flags & kEncrypted) != 0 || entry.kind == Kind::Other) {
            return Refuse(entry.kind == Kind::Other ? Defect::SpecialFile : Defect::Encrypted, entry.path, "");
        }
        return (isPlain && isConsistent) ||
               Refuse(Defect::OddForm, entry.path,
                      "flags " + std::to_string(form.flags) + ", method " + std::to_string(form.method) +
                          ", attributes 0" + Octal(header.attributes >> 16));
    }

    // The local header, which must stand where the entry before has ended, and say what the directory says.
    // `extra` are the directory's further fields.
    bool CompareFront(const Entry& entry, const DirectoryHeader& header, const std::string& extra) {
        LocalHeader local;
        const bool isThere = header.offset == next_ && Take(file_, next_, local);
        LocalHeader expected;
        expected.form = entry.form;
        expected.form.extra = local.form.extra;
        const std::string rest = TakeText(file_, next_ + qint64{sizeof(local)}, entry.form.name + local.form.extra);
        if (!isThere || Bytes(local) != Bytes(expected) || rest.substr(0, entry.form.name) != StoredName(entry)) {
            return Refuse(Defect::Damaged, entry.path, "what stands in front of its data differs from the directory");
        }
        next_ += qint64{sizeof(local)} + static_cast<qint64>(rest.size()) + entry.form.packed;
        return ((HasKnownFields(extra) && HasKnownFields(rest.substr(entry.form.name))) ||
                Refuse(Defect::OddForm, entry.path, "it has a field that is not known")) &&
               (next_ <= directory_ || Refuse(Defect::Damaged, entry.path, "its data is cut short"));
    }

    // A link's target is its data, which ends where the next entry begins.
    bool ReadTarget(Entry& entry) {
        constexpr std::uint32_t longest = 1 << 16;  // more than any system takes
        entry.target = entry.form.size > longest ? "" : TakeText(file_, next_ - entry.form.size, entry.form.size);
        entry.size = 0;
        return Sum(0, entry.target) == entry.form.sum ||
               Refuse(Defect::Damaged, entry.path, "its target is not what its sum says");
    }

    bool Refuse(Defect defect, const std::string& name, const std::string& detail) {
        findings_.Add(defect, name, detail);
        return false;
    }

    QFile& file_;
    std::vector<Entry>& entries_;
    Findings& findings_;
    std::uint64_t count_ = 0;
    qint64 directory_ = 0;  // where it begins
    qint64 at_ = 0;         // where its next header is
    qint64 end_ = 0;        // where it ends
    qint64 next_ = 0;       // where the next local header must begin
};

}  // namespace

Error ReadDirectory(QFile& file, std::vector<Entry>& entries, Findings& findings) {
    return DirectoryReader(file, entries, findings).Run();
}

ZipWriter::ZipWriter(QFile& file, std::time_t time) : file_(file) {
    struct tm parts = {};
    gmtime_r(&time, &parts);
    deflateInit2(&stream_, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY);
    form_.time = static_cast<std::uint16_t>(parts.tm_hour << 11 | parts.tm_min << 5 | parts.tm_sec / 2);
    form_.date = static_cast<std::uint16_t>((parts.tm_year - 80) << 9 | (parts.tm_mon + 1) << 5 | parts.tm_mday);
}

Error ZipWriter::Write(std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    if (file_.pos() + size >= kLargestPackage) {
        return Error("a package can't be larger than " + SizeText(kLargestPackage));
    }
    return file_.write(bytes.data(), size) == size ? Error() : Error::System("can't write it");
}

Error ZipWriter::Add(Entry& entry, const Source& source) {
    const qint64 offset = file_.pos();
    const std::string name = StoredName(entry);
    ZipForm& form = entry.form = form_;
    form.flags = IsAscii(name) ? 0 : kUtf8;
    form.name = static_cast<std::uint16_t>(name.size());
    form.method = entry.kind == Kind::File ? kDeflated : 0;
    form.packed = form.size = static_cast<std::uint32_t>(entry.kind == Kind::File ? static_cast<std::size_t>(entry.size)
                                                                                  : entry.target.size());
    form.sum = static_cast<std::uint32_t>(Sum(0, entry.target));
    LocalHeader local;
    local.form = form;
    Error error = Write(std::string(Bytes(local)) + name + entry.target);
    if (!error && entry.kind == Kind::File) {
        error = WriteDeflated(entry, source);
        local.form = form;  // now that sum and size are known
        const qint64 end = file_.pos();
        if (!error && (!file_.seek(offset) || (error = Write(Bytes(local))) || !file_.seek(end))) {
            error = Error::System("can't write it");
        }
    }
    DirectoryHeader header;
    header.form = form;
    header.attributes = (TypeOf(entry.kind) | entry.mode) << 16 | (entry.mode & 0xff) << 8;
    header.offset = static_cast<std::uint32_t>(offset);
    directory_.append(Bytes(header)).append(name);
    ++count_;
    return error;
}

Error ZipWriter::WriteDeflated(Entry& entry, const Source& source) {
    std::string out(kBlockSize, '\0');
    uLong sum = 0;
    std::int64_t left = entry.size;
    const auto deflateBlock = [&](std::string_view block, int flush) {
        stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(block.data()));
        stream_.avail_in = static_cast<uInt>(block.size());
        Error error;
        do {
            stream_.next_out = reinterpret_cast<Bytef*>(out.data());
            stream_.avail_out = static_cast<uInt>(out.size());
            deflate(&stream_, flush);
            error = Write(std::string_view(out.data(), out.size() - stream_.avail_out));
        } while (!error && stream_.avail_out == 0);
        return error;
    };
    deflateReset(&stream_);
    Error error = source([&](std::string_view block) {
        sum = Sum(sum, block);
        left -= static_cast<std::int64_t>(block.size());
        return left < 0 ? Error(entry.path + ": grew while it was packed") : deflateBlock(block, Z_NO_FLUSH);
    });
    error = error ? error : deflateBlock({}, Z_FINISH);
    entry.form.sum = static_cast<std::uint32_t>(sum);
    entry.form.packed = static_cast<std::uint32_t>(stream_.total_out);
    return error || left == 0 ? error : Error(entry.path + ": shrank while it was packed");
}

Error ZipWriter::Finish() {
    const auto offset = static_cast<std::uint64_t>(file_.pos());
    return Write(directory_ + EndOf(count_, offset, directory_.size(), LargeEnd().versions));
}
