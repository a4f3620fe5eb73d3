// File operations: free functions over the system's file calls.
//
// Paths are UTF-8 byte strings without a zero byte; a relative one counts from the working folder. Nothing is thrown:
// functions report by an int whose numbers differ from function to function, and log their failures under the component
// "file_op_debug". Unless a function says otherwise, errno means nothing after it, nothing is retried, and a failure
// leaves what was done so far.
//
// Threads: no function keeps state between calls, so that any thread may call any of them. Two calls on overlapping
// paths are not guarded against each other.
//
// The generator of temporary names has a header of its own, tmp-name.h.
#pragma once

#include <dirent.h>

#include <cstdint>
#include <string>

// ---- One object of the file system ----------------------------------------------------------------------------------

// What kind of object it is. The numbers are fixed, 4 is none of them.
enum FileType : std::int32_t {
    FILE_TYPE_NONE = 0,  // absent or unknown
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIRECTORY = 2,
    FILE_TYPE_SYMLINK = 3,
    FILE_TYPE_DEVICE = 5,  // character or block device
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7,
};

// Describes one object; a value that its holder owns. A symbolic link is described itself, never what it leads to.
struct _FILE_INFO_tag {
    std::string path;        // as the file system spells it, parents resolved; the input where the object is absent
    std::string name;        // FSBaseName of the path
    std::int32_t type = 0;   // a FileType
    std::int32_t mtime = 0;  // seconds since the epoch, the low 32 bits
    std::int64_t size = 0;   // bytes, for every type
    bool exist = false;      // whether lstat found the object
    std::int32_t uid = 0;    // owner
    std::int32_t gid = 0;    // owner's group
    std::int32_t mode = 0;   // type and permission bits, 16 of them
    std::int64_t dev = 0;    // device number of the volume, sign-extended from 32 bits
};

// Compares exist, size, mtime, type, path and name. Owner, mode and device take no part: what differs in them only is
// equal.
bool operator==(const _FILE_INFO_tag& left, const _FILE_INFO_tag& right);
bool operator!=(const _FILE_INFO_tag& left, const _FILE_INFO_tag& right);

// Fills `info` for the object at `path`.
//    0  described; or absent (ENOENT), which is a success with `exist` false, `path` the input and zeros
//   -1  lstat failed otherwise, as below a plain file: `info` as it was, nothing logged. Or the object is of no known
//       type, or its spelling could not be found (logged): `info` is filled but `path` is spelled as given.
// Source: lstat(2), platform/file-reference.h. Costs one lstat and one lookup of the spelling.
int GetFileInfo(const std::string& path, _FILE_INFO_tag& info);

// Whether an object stands at `path`; a dangling link does. With `exactPath` it counts only if the file system spells
// the whole path in the same way, both compared in NFC: another letter case, a parent that is a symbolic link, a
// trailing "/" or a relative path then make it absent. False for an empty path and where GetFileInfo fails.
// Two paths that are not UTF-8 compare equal.
bool IsFileExist(const std::string& path, bool exactPath);

// Fills `info` for the object at `path`, if IsFileExist(path, exactPath).
//    0  described; or absent by that test, with `exist` set to false and nothing else touched
//   -1  empty path
//   -2  GetFileInfo failed on the second look: the object has changed in between
int FSStat(const std::string& path, _FILE_INFO_tag& info, bool exactPath);

// The text before the last "/"; "/" where that is the first character or where there is none.
std::string FSParentPath(const std::string& path);

// The text behind the last "/": empty if the path ends in it, the whole path if there is none.
std::string FSBaseName(const std::string& path);

// Whether two times are the same.
bool FSTimeEqual(std::int64_t left, std::int64_t right);

// Sets access and modification time, in seconds since the epoch; of a link its own. 0 or -1. Source: lutimes(3).
int FSUTime(const std::string& path, std::int64_t accessTime, std::int64_t modificationTime);

// Whether the real user is refused the access (R_OK, W_OK, X_OK or F_OK) by permissions (EACCES, EPERM). Any other
// failure, such as an absent file, is not a lock. Source: access(2).
bool isFileLocked(const std::string& path, int accessMode);

// The negation of isFileLocked: an absent file counts as permitted.
bool hasFilePermission(const std::string& path, int accessMode);

// ---- Copy, rename, remove -------------------------------------------------------------------------------------------

// Copies the content of the file `src`, links followed, into `dst`, which is created or truncated in place, and then
// deletes `src` if `removeSource`. A new `dst` has mode 0644, or that of the source if `keepMode`, less the umask; one
// that stood before keeps its own. Times, owner and extended attributes are not carried; nothing is flushed to disk.
//    0  copied, and the source removed if asked for
//   -1  open, stat, read or write failed, or the source could not be removed (which is not logged)
//   -2  a write failed for want of disk space or quota
// After a failure a partial `dst` stays.
int FSCopy(const std::string& src, const std::string& dst, bool removeSource, bool keepMode);

// Moves an object; over a volume border a regular file or a folder by copy, object by object, where the copies have
// mode 0644 less the umask and a new time. `exactPath` is that of IsFileExist and is about `oldPath`.
//     0  moved
//    -1  a path is empty
//    -2  the source is absent, not under that spelling, or could not be read; `newPath` is untouched
//    -3  the move failed: what was moved before stays in the new place, the rest in the old. Links, devices, FIFOs and
//        sockets can't be moved over a volume border.
//  -100  rename failed with ENAMETOOLONG
// Logs nothing itself. Source: rename(2), remove(3).
int FSRename(const std::string& oldPath, const std::string& newPath, bool exactPath);

// Removes an object, a folder with all that it holds, a link without what it leads to. `ignoredFlag` has no effect.
//    0  removed; or absent; or a folder that can't be opened, which stays as it is
//   -1  empty path, or GetFileInfo failed
//   -3  a removal failed, here or below; the rest stays
// Logs nothing itself. Source: remove(3). One directory stream a level is open at a time.
int FSRemove(const std::string& path, bool ignoredFlag);

// Flushes one file to disk. 0; 1, without a message, if it is absent; -1 if it can't be opened or flushed. Source:
// fsync(2).
int FSFsync(const std::string& path);

// ---- Directories ----------------------------------------------------------------------------------------------------

// Creates a folder with mode 0777 less the umask, with `recursive` all missing levels above it as well.
//    0  it exists now
//   -1  empty path, GetFileInfo failed, or there is something else than a folder, such as a link to one
//   -2  creation failed, and errno tells why; levels made before stay
int FSMKDir(const std::string& path, bool recursive);

// Creates the levels of `target` below `root`, which is taken to exist, one FSMKDir each. 0, or -1 if `root` is no
// parent of `target` by FSIsParentFolder or a level fails. Equal paths create nothing.
int FSMKDirFromRoot(const std::string& target, const std::string& root);

// Whether `child` is `parent` or lies below it, by text alone. A `parent` with a trailing "/" is parent of itself and
// of nothing else.
bool FSIsParentFolder(const std::string& parent, const std::string& child);

// An open listing. The caller creates it empty and owns it; it holds a system resource from FSOpenDir to FSCloseDir.
// One thread at a time.
struct DIR_HANDLE {
    std::string path;        // the folder, as given; empty while closed
    std::int32_t flags = 0;  // bit 0: FSReadDir fills mtime and size. No other bit is read.
    DIR* dir = nullptr;      // owned by the handle while it is open
};

// One entry of a listing, overwritten on each read.
struct DIR_ENTRY {
    std::string name;        // without any folder
    std::int32_t type = 0;   // a FileType
    std::int32_t mtime = 0;  // seconds since the epoch, or 0
    std::int64_t size = 0;   // bytes, or 0
};

// Opens a listing of the folder. 0, or -1 with `handle` as it was. Source: opendir(3).
int FSOpenDir(const std::string& path, int flags, DIR_HANDLE& handle);

// Reads the next entry of an open handle, "." and ".." included, in no particular order.
//    1  an entry; its type is what the stream says, FILE_TYPE_NONE on a volume whose streams tell none
//    0  the end, or a read error; `entry` as it was
//   -1  no information for the entry, with bit 0 of the flags; `entry` as it was, the next call goes on
// After 0 and -1 the handle is still open. Source: readdir(3).
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

// Closes an open handle. Never call it on one that is not open.
void FSCloseDir(DIR_HANDLE& handle);

// ---- Volumes, links, attributes -------------------------------------------------------------------------------------

// Whether the path lies on a network volume (NFS, SMB, AFP), in spite of the name. False also where that can't be found
// out, which is logged. Source: statfs(2).
bool isMountPoint(const std::string& path);

// Whether the path lies on a FAT volume, with a warning in the log if so. False also where that can't be found out,
// which is logged. Source: statfs(2).
bool IsMSDOS(const std::string& path);

// Replaces the path by the full path of the object that it leads to, a link at its end followed. 0, or -1 with `path`
// as it was. At most 4095 bytes. Source: platform/file-reference.h.
int FSGetRealPath(std::string& path);

// Makes the symbolic link `linkPath` with `target` as its content. 0 or -1. Source: symlink(2).
int FSCreateSymbolicLink(const std::string& target, const std::string& linkPath);

// Reads a symbolic link. 0, or -1 with `outTarget` as it was: no link, or a content of more than 1023 bytes. Source:
// readlink(2).
int FSReadSymbolicLink(const std::string& path, std::string& outTarget);

// Changes the owner, of a link its own. 0 or -1. Source: lchown(2).
int FSChown(const std::string& path, std::uint32_t uid, std::uint32_t gid);

// Changes the mode, of a link that of what it leads to. 0 or -1. Source: chmod(2).
int FSChmod(const std::string& path, std::uint16_t mode);

// ---- Temporary names ------------------------------------------------------------------------------------------------

// Makes an empty file with an unused name and mode 0644 in the folder, and closes it. 0, or -1 with `outPath` as it
// was: the folder is absent or not writable, or its path is too long. The file is the caller's. Source: mkstemp(3).
int FSMktemp(const std::string& folder, std::string& outPath);

// Makes up a path in the folder, which need not exist: nothing is created or looked at. 0 (-1 can't occur).
int FSCreateTempPath(const std::string& folder, std::string& outPath);
