#include "volume.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <linux/loop.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <vector>

namespace {

constexpr int kMountTimeout = 20000;  // milliseconds

std::string Because(const std::string& what) {
    return what + ": " + std::strerror(errno);
}

// Starts a program of the system, also one from the folders of the administrator's, silent.
pid_t Start(const std::vector<std::string>& arguments) {
    std::string path = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
    std::string env = "env";
    std::vector<char*> argv = {env.data(), path.data()};
    std::vector<std::string> copies = arguments;
    for (std::string& argument : copies) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        setsid();  // out of reach of the terminal's signals
        const int null = open("/dev/null", O_RDWR);
        dup2(null, STDIN_FILENO);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        execv("/usr/bin/env", argv.data());
        _exit(127);
    }
    return child;
}

bool Run(const std::vector<std::string>& arguments) {
    int status = -1;
    const pid_t child = Start(arguments);
    return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

// Keeps of the rights in a user namespace the one to mount, lest permissions mean nothing to the test.
void KeepMountingOnly() {
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2] = {};
    data[0].effective = data[0].permitted = 1U << CAP_SYS_ADMIN;
    syscall(SYS_capset, &header, data);
}

void WriteText(const char* path, const std::string& text) {
    std::ofstream(path) << text;
}

// Enters a mount namespace of the process's own. Empty, or why not.
std::string EnterNamespace() {
    const uid_t uid = geteuid();
    const gid_t gid = getegid();
    if (unshare(uid == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) {
        return Because("unshare");
    }
    if (uid != 0) {
        WriteText("/proc/self/setgroups", "deny");
        WriteText("/proc/self/uid_map", std::to_string(uid) + " " + std::to_string(uid) + " 1");
        WriteText("/proc/self/gid_map", std::to_string(gid) + " " + std::to_string(gid) + " 1");
        KeepMountingOnly();
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 ? "" : Because("mount of /");
}

const std::string& WhyNoNamespace() {
    static const std::string reason = EnterNamespace();
    return reason;
}

// A loop device on an image, which frees itself with its last user.
class LoopDevice {
public:
    explicit LoopDevice(const std::string& image) {
        const int control = open("/dev/loop-control", O_RDWR | O_CLOEXEC);
        const int file = open(image.c_str(), O_RDWR | O_CLOEXEC);
        // Another process may take the free device first.
        for (int attempt = 0; attempt < 10 && device_ < 0 && control >= 0 && file >= 0; ++attempt) {
            path_ = "/dev/loop" + std::to_string(ioctl(control, LOOP_CTL_GET_FREE));
            device_ = open(path_.c_str(), O_RDWR | O_CLOEXEC);
            loop_config config = {};
            config.fd = static_cast<__u32>(file);
            config.info.lo_flags = LO_FLAGS_AUTOCLEAR;
            if (device_ >= 0 && ioctl(device_, LOOP_CONFIGURE, &config) != 0) {
                close(device_);
                device_ = -1;
            }
        }
        reason_ = device_ < 0 ? Because("loop device") : "";
        close(file);
        close(control);
    }
    ~LoopDevice() { close(device_); }
    LoopDevice(const LoopDevice&) = delete;
    LoopDevice& operator=(const LoopDevice&) = delete;

    const std::string& whyNot() const { return reason_; }
    const std::string& path() const { return path_; }

private:
    std::string path_;
    std::string reason_;
    int device_ = -1;
};

dev_t DeviceOf(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? status.st_dev : 0;
}

}  // namespace

Volume::Volume(Kind kind, const std::string& folder, std::size_t size) : folder_(folder) {
    if (mkdir(folder.c_str(), 0777) != 0) {
        why_not_ = Because("mkdir " + folder);
        return;
    }
    why_not_ = WhyNoNamespace();
    if (!why_not_.empty()) {
        return;
    }
    if (kind == Tmpfs) {
        MountTmpfs(size);
        return;
    }
    if (geteuid() != 0) {
        why_not_ = "only root mounts an image";
        return;
    }
    const std::string image = folder + ".image";
    std::ofstream(image).close();
    if (truncate(image.c_str(), static_cast<off_t>(size)) != 0) {
        why_not_ = Because("truncate " + image);
    } else if (kind == ExFat) {
        MountExFat(image);
    } else {
        MountFat(image);
    }
}

Volume::~Volume() {
    if (!isMounted()) {
        return;
    }
    if (server_ < 0) {
        umount2(folder_.c_str(), MNT_DETACH);
        return;
    }
    close(alive_);
    waitpid(guard_, nullptr, 0);
    // It would wait for whoever still uses the volume.
    kill(server_, SIGKILL);
    waitpid(server_, nullptr, 0);
}

// The server's last act must not be to unmount: it would wait for its own answer. So a child of its own outlives this
// process by as much as it takes to do that, however this process ends.
void Volume::StartGuard() {
    int alive[2] = {-1, -1};
    if (pipe2(alive, O_CLOEXEC) != 0) {
        why_not_ = Because("pipe");
        return;
    }
    guard_ = fork();
    if (guard_ == 0) {
        setsid();
        close(alive[1]);
        char nothing = 0;
        while (read(alive[0], &nothing, 1) < 0 && errno == EINTR) {
        }
        umount2(folder_.c_str(), MNT_DETACH);
        _exit(0);
    }
    close(alive[0]);
    alive_ = alive[1];
}

void Volume::MountTmpfs(std::size_t size) {
    const std::string options = "mode=0777,size=" + std::to_string(size);
    if (mount("tmpfs", folder_.c_str(), "tmpfs", 0, options.c_str()) != 0) {
        why_not_ = Because("mount of tmpfs");
    }
}

void Volume::MountExFat(const std::string& image) {
    if (!Run({"mkfs.exfat", image})) {
        why_not_ = "mkfs.exfat failed or is missing";
        return;
    }
    // The server, when started by root, insists on a block device.
    const LoopDevice loop(image);
    if (!loop.whyNot().empty()) {
        why_not_ = loop.whyNot();
        return;
    }
    // The write end is open in the server alone.
    int alive[2] = {-1, -1};
    if (pipe(alive) != 0) {
        why_not_ = Because("pipe");
        return;
    }
    fcntl(alive[0], F_SETFD, FD_CLOEXEC);
    const dev_t before = DeviceOf(folder_);
    const int mounts = open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    // "-d": in the foreground, so that its end is seen.
    server_ = Start({"mount.exfat-fuse", "-d", loop.path(), folder_});
    close(alive[1]);
    pollfd events[] = {{mounts, POLLPRI, 0}, {alive[0], POLLIN, 0}};
    // Each change of the mount table is an event.
    while (DeviceOf(folder_) == before || DeviceOf(folder_) == 0) {
        if (poll(events, 2, kMountTimeout) <= 0 || (events[1].revents & (POLLHUP | POLLIN)) != 0) {
            why_not_ = "mount.exfat-fuse failed or is missing";
            kill(server_, SIGKILL);
            waitpid(server_, nullptr, 0);
            server_ = -1;
            break;
        }
    }
    close(mounts);
    close(alive[0]);
    if (isMounted()) {
        StartGuard();
    }
}

void Volume::MountFat(const std::string& image) {
    if (!Run({"mkfs.vfat", image})) {
        why_not_ = "mkfs.vfat failed or is missing";
        return;
    }
    const LoopDevice loop(image);
    if (!loop.whyNot().empty()) {
        why_not_ = loop.whyNot();
    } else if (mount(loop.path().c_str(), folder_.c_str(), "vfat", 0, nullptr) != 0) {
        why_not_ = Because("mount of vfat");
    }
}

void AsOrdinaryUser(const std::function<void()>& action) {
    if (geteuid() != 0) {
        action();
        return;
    }
    constexpr uid_t kNobody = 65534;
    std::fflush(nullptr);
    const pid_t child = fork();
    ASSERT_GE(child, 0) << std::strerror(errno);
    if (child == 0) {
        if (setgroups(0, nullptr) != 0 || setresgid(kNobody, kNobody, kNobody) != 0 ||
            setresuid(kNobody, kNobody, kNobody) != 0) {
            std::perror("can't become another user");
            _exit(2);
        }
        action();
        std::fflush(nullptr);
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status) << "as an ordinary user";
}
