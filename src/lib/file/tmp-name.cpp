#include "file/tmp-name.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "file/file-op.h"
#include "file/internal.h"
#include "log/log-statement.h"
#include "posix/handles.h"

namespace {

constexpr char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
constexpr std::size_t kNameLength = 8;
constexpr std::size_t kPathBuffer = 4096;

static_assert(sizeof(kAlphabet) == 64 + 1, "one character for each value of the distribution");
static_assert(std::minstd_rand::multiplier == 48271 && std::minstd_rand::increment == 0 &&
                  std::minstd_rand::modulus == 2147483647,
              "the sequence of names for a seed is fixed");

}  // namespace

TmpNameGen& TmpNameGen::getInstance() {
    static TmpNameGen instance;
    return instance;
}

TmpNameGen::TmpNameGen() {
    reseed();
}

void TmpNameGen::reseed() {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::random_device source("/dev/urandom");
    engine_ = std::minstd_rand(source());
}

std::string TmpNameGen::getTmpName() {
    // Shared by all threads: it has no state but its bounds.
    static std::uniform_int_distribution<int> distribution(0, 63);
    const std::lock_guard<std::mutex> lock(mutex_);
    char name[kNameLength + 1] = {};
    for (std::size_t place = 0; place < kNameLength; ++place) {
        name[place] = kAlphabet[distribution(engine_)];
    }
    return name;
}

std::string TmpNameGen::getTmpPath(const std::string& folder) {
    return folder + "/" + getTmpName();
}

int FSMktemp(const std::string& folder, std::string& outPath) {
    char buffer[kPathBuffer];
    // A path that does not fit is cut, and without the six letters at its end mkstemp refuses it.
    static_cast<void>(std::snprintf(buffer, sizeof(buffer), "%s/XXXXXX", folder.c_str()));
    Fd file(mkostemp(buffer, O_CLOEXEC));
    if (!file) {
        const int error = errno;
        KQ_LOG_ERROR(kLogComponent, "mkstemp(%s): %s\n", buffer, std::strerror(error));
        return -1;
    }
    file.close();
    outPath = buffer;
    static_cast<void>(chmod(buffer, 0644));
    return 0;
}

int FSCreateTempPath(const std::string& folder, std::string& outPath) {
    // By its c_str(): the path ends at a first zero byte.
    outPath = TmpNameGen::getInstance().getTmpPath(folder.c_str());
    return outPath.empty() ? -1 : 0;
}
