// Programs that a test starts.
#pragma once

#include <sys/types.h>

#include <QProcess>
#include <map>
#include <string>
#include <vector>

using Environment = std::map<std::string, std::string>;

constexpr uid_t kNobody = 65534;  // a user who is not root

// What became of a program.
struct Outcome {
    int exitCode = -1;   // -1 if a signal ended it
    int signal = 0;      // that signal, or 0
    std::string output;  // its standard output
    std::string errors;  // its standard error
};

// A program that runs with exactly this environment, nothing to read, and its output kept for the test. It is killed
// with the object.
class Process {
public:
    explicit Process(const std::vector<std::string>& arguments, const Environment& environment = {});
    ~Process();

    // The next line that it prints; waits for it. The limits here and below, a minute, are for a test gone wrong.
    std::string ReadLine();

    void Signal(int number) const;
    Outcome Wait();

private:
    QProcess process_;
};

// Starts a program and waits for its end.
Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment = {});

// What a running client does. Each tells its process id first.
namespace manners {
constexpr char kPrompt[] = "echo $$; exec sleep 60";                             // ends on SIGTERM
constexpr char kSlow[] = "trap 'sleep 1.2; exit 7' TERM; echo $$; read -r <&3";  // ends a while after SIGTERM
constexpr char kDeaf[] =
    "trap 'echo term' TERM; echo $$; while read -r <&3; do :; done";  // tells of SIGTERM, and stays
constexpr char kZombie[] = "sleep 0.1 & echo $!; exec sleep 60";      // has ended, and nobody cares
}  // namespace manners

// A process that stands for a running client: a shell script beneath a shell that takes notice of its end.
class FakeClient {
public:
    explicit FakeClient(const std::string& script);
    ~FakeClient();

    pid_t id() const { return id_; }
    std::string ReadLine() { return shell_.ReadLine(); }

    // Waits for its end: the exit code, or 128 and the number of the signal that ended it.
    int AwaitEnd();

private:
    Process shell_;
    pid_t id_;
};
