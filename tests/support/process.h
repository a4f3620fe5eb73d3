// Programs that a test starts.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

using Environment = std::map<std::string, std::string>;

// What became of a program.
struct Outcome {
    int exitCode = -1;      // -1 if a signal ended it
    int signal = 0;         // the signal that ended it, or 0
    std::string output;     // its standard output
    std::string errors;     // its standard error
    bool timedOut = false;  // it was killed after the limit
};

// A program that runs. Its standard output and error go to files of its own, so that a detached grandchild that keeps
// them open holds nobody up.
class Process {
public:
    // Starts `arguments[0]` with exactly this environment. `user` other than 0 is the user and group to run as.
    Process(const std::vector<std::string>& arguments, const Environment& environment, uid_t user = 0);
    ~Process();  // kills what still runs

    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t id() const { return process_; }

    // Waits for the end. After `seconds` the program is killed: a limit for a test gone wrong, not a measure.
    Outcome Wait(int seconds = 60);

    void Signal(int number) const;

private:
    pid_t process_ = -1;
    int output_ = -1;
    int errors_ = -1;
};

// Starts a program and waits for its end.
Outcome RunProcess(const std::vector<std::string>& arguments, const Environment& environment, uid_t user = 0);

// A FIFO in which programs leave lines for the test.
class Mailbox {
public:
    explicit Mailbox(const std::string& path);
    ~Mailbox();

    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;

    const std::string& path() const { return path_; }

    // The next line without its end; waits for it. Empty if none comes within the limit for a test gone wrong.
    std::string ReadLine(int seconds = 30);

    // Whether nothing waits to be read now.
    bool IsEmpty();

private:
    std::string path_;
    int descriptor_ = -1;
    std::string pending_;
};

// A process that stands for a running client. It is reaped as soon as it ends, like a process that is nobody's child
// here, unless it is to stay a zombie.
class FakeClient {
public:
    enum class Manners {
        Prompt,  // ends at once on SIGTERM
        Slow,    // ends three seconds after SIGTERM
        Deaf,    // ignores SIGTERM
        Zombie,  // has ended already, and nobody has taken notice
    };

    explicit FakeClient(Manners manners);
    ~FakeClient();

    FakeClient(const FakeClient&) = delete;
    FakeClient& operator=(const FakeClient&) = delete;

    pid_t id() const { return process_; }

    // Waits until the process was sent SIGTERM (Deaf and Slow only).
    void AwaitTerm();

    // Waits for the end and returns the signal that ended it, or 0 for an exit. Not for a zombie.
    int AwaitEnd();

private:
    Manners manners_;
    pid_t process_ = -1;
    int messages_ = -1;
    int status_ = 0;
    std::thread reaper_;
};
