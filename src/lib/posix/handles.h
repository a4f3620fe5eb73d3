// Owners of what the system hands out. Move-only; each gives back what it holds when it goes.
#pragma once

#include <dirent.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

// A POSIX descriptor, -1 for none. Source: close(2).
class Fd {
public:
    explicit Fd(int descriptor = -1) : descriptor_(descriptor) {}
    Fd(Fd&& other) noexcept : descriptor_(other.release()) {}
    Fd& operator=(Fd&& other) noexcept {
        if (this != &other) {
            close();
            descriptor_ = other.release();
        }
        return *this;
    }
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    ~Fd() { close(); }

    explicit operator bool() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    // Closes what is open. 0, also if nothing was; -1 with errno set if the system reports a failure, as a late write
    // error; the descriptor is gone then, too.
    int close() { return descriptor_ < 0 ? 0 : ::close(release()); }

private:
    int release() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor;
    }

    int descriptor_;
};

// A directory stream, null for none. Source: closedir(3), which fails for no stream that is open.
struct CloseDirStream {
    void operator()(DIR* stream) const { ::closedir(stream); }
};
using DirStream = std::unique_ptr<DIR, CloseDirStream>;

// A stream of the C library, null for none. Whoever writes to one flushes it first to learn of a late failure. Source:
// fclose(3).
struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;
