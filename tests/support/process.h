// Programs that a test starts.
#pragma once

#include <sys/types.h>

#include <QProcess>
#include <csignal>
#include <map>
#include <string>
#include <vector>

using Environment = std::map<std::string, std::string>;

// What became of a program.
struct Outcome {
    int exitCode = -1;   // -1 if a signal ended it
    int signal = 0;      // that signal, or 0
    std::string output;  // its standard output
    std::string errors;  // its standard error
};

// A program that runs with exactly this environment and is killed with the object. Waiting for it has a limit of a
// minute, for a test gone wrong.
class Process : public QProcess {
public:
    explicit Process(const std::vector<std::string>& arguments, const Environment& environment = {});
    ~Process() override;

    std::string ReadLine();  // the next one that it prints
    void Signal(int number) const { ::kill(static_cast<pid_t>(processId()), number); }
    Outcome Wait();
};

// Starts a program and waits for its end.
Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment = {});

// A process that stands for a running client: a script beneath a shell that takes notice of its end.
class FakeClient : public Process {
public:
    // Ends on SIGTERM; tells of it, and stays. Each tells its process id first.
    static constexpr char kPrompt[] = "echo $$; exec sleep 60";
    static constexpr char kDeaf[] = "trap 'echo term' TERM; echo $$; while read -r <&3; do :; done";

    explicit FakeClient(const std::string& script)
        : Process({"/bin/bash", "-c", "exec 3<&0; bash -c \"$0\" & wait $! 2>/dev/null; echo $?", script}),
          id_(std::stoi("0" + ReadLine())) {}
    ~FakeClient() override { ::kill(id_, SIGKILL); }

    pid_t id() const { return id_; }

    // Waits for its end: the exit code, or 128 and the number of the signal that ended it.
    int AwaitEnd() { return std::stoi("0" + ReadLine()); }

private:
    pid_t id_;
};
