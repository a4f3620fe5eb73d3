#include "process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

namespace {

int OpenTemporary() {
    return memfd_create("output", MFD_CLOEXEC);
}

std::string ReadAll(int descriptor) {
    std::string text;
    char block[4096];
    off_t at = 0;
    for (ssize_t got = 0; (got = pread(descriptor, block, sizeof(block), at)) > 0; at += got) {
        text.append(block, static_cast<std::size_t>(got));
    }
    return text;
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (const std::string& text : texts) {
        pointers.push_back(const_cast<char*>(text.c_str()));  // NOLINT: exec takes them so and changes nothing.
    }
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

Process::Process(const std::vector<std::string>& arguments, const Environment& environment, uid_t user)
    : output_(OpenTemporary()), errors_(OpenTemporary()) {
    std::vector<std::string> settings;
    for (const auto& [name, value] : environment) {
        settings.push_back(name + "=" + value);
    }
    const std::vector<char*> argv = Pointers(arguments);
    const std::vector<char*> envp = Pointers(settings);
    process_ = fork();
    if (process_ == 0) {
        const int input = open("/dev/null", O_RDONLY | O_CLOEXEC);
        dup2(input, STDIN_FILENO);
        dup2(output_, STDOUT_FILENO);
        dup2(errors_, STDERR_FILENO);
        if (user != 0 && (setresgid(user, user, user) != 0 || setresuid(user, user, user) != 0)) {
            _exit(126);
        }
        execve(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    EXPECT_GT(process_, 0);
}

Process::~Process() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    close(output_);
    close(errors_);
}

void Process::Signal(int number) const {
    kill(process_, number);
}

Outcome Process::Wait(int seconds) {
    Outcome outcome;
    const int watch = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
    pollfd ended = {watch, POLLIN, 0};
    if (watch >= 0 && poll(&ended, 1, seconds * 1000) == 0) {
        kill(process_, SIGKILL);
        outcome.timedOut = true;
    }
    close(watch);
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    outcome.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    outcome.output = ReadAll(output_);
    outcome.errors = ReadAll(errors_);
    return outcome;
}

Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment, uid_t user) {
    return Process(arguments, environment, user).Wait();
}

Mailbox::Mailbox(const std::string& path) : path_(path) {
    EXPECT_EQ(mkfifo(path.c_str(), 0666), 0) << path;
    EXPECT_EQ(chmod(path.c_str(), 0666), 0) << path;
    // Open for both, so that there is always a reader and never an end of file.
    descriptor_ = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(descriptor_, 0) << path;
}

Mailbox::~Mailbox() {
    close(descriptor_);
}

std::string Mailbox::ReadLine(int seconds) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    std::size_t end = 0;
    while ((end = pending_.find('\n')) == std::string::npos) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(limit - std::chrono::steady_clock::now()).count();
        pollfd readable = {descriptor_, POLLIN, 0};
        if (left <= 0 || poll(&readable, 1, static_cast<int>(left)) <= 0) {
            return "";
        }
        char block[512];
        const ssize_t got = read(descriptor_, block, sizeof(block));
        if (got > 0) {
            pending_.append(block, static_cast<std::size_t>(got));
        }
    }
    const std::string line = pending_.substr(0, end);
    pending_.erase(0, end + 1);
    return line;
}

bool Mailbox::IsEmpty() {
    pollfd readable = {descriptor_, POLLIN, 0};
    return pending_.empty() && poll(&readable, 1, 0) == 0;
}

namespace {

int messageEnd = -1;

void OnTerm(int /*signal*/) {
    const char byte = 't';
    if (write(messageEnd, &byte, 1) != 1) {
        _exit(1);
    }
}

// The life of a fake client, in its own process: says that it is ready, then waits for signals.
[[noreturn]] void LiveAsClient(FakeClient::Manners manners, int messages) {
    messageEnd = messages;
    if (manners == FakeClient::Manners::Zombie) {
        _exit(0);
    }
    struct sigaction action = {};
    action.sa_handler = manners == FakeClient::Manners::Prompt ? SIG_DFL : OnTerm;
    sigaction(SIGTERM, &action, nullptr);
    const char ready = 'r';
    if (write(messages, &ready, 1) != 1) {
        _exit(1);
    }
    for (;;) {
        pause();
        if (manners == FakeClient::Manners::Slow) {
            sleep(3);
            _exit(0);
        }
    }
}

char ReadByte(int descriptor) {
    char byte = 0;
    return read(descriptor, &byte, 1) == 1 ? byte : '\0';
}

}  // namespace

FakeClient::FakeClient(Manners manners) : manners_(manners) {
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    process_ = fork();
    if (process_ == 0) {
        LiveAsClient(manners, ends[1]);
    }
    close(ends[1]);
    messages_ = ends[0];
    if (manners == Manners::Zombie) {
        siginfo_t info = {};
        EXPECT_EQ(waitid(P_PID, static_cast<id_t>(process_), &info, WEXITED | WNOWAIT), 0);
        return;
    }
    EXPECT_EQ(ReadByte(messages_), 'r');
    reaper_ = std::thread([this] { waitpid(process_, &status_, 0); });
}

FakeClient::~FakeClient() {
    if (manners_ == Manners::Zombie) {
        waitpid(process_, nullptr, 0);
    } else if (reaper_.joinable()) {
        kill(process_, SIGKILL);
        reaper_.join();
    }
    close(messages_);
}

void FakeClient::AwaitTerm() {
    EXPECT_EQ(ReadByte(messages_), 't');
}

int FakeClient::AwaitEnd() {
    reaper_.join();
    return WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
}
