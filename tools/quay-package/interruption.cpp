#include "interruption.h"

#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace {

volatile std::sig_atomic_t taken = 0;

void Take(int number) {
    taken = number;
    std::signal(number, SIG_DFL);
}

}  // namespace

void TakeInterruptions() {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        action.sa_handler = Take;
        sigemptyset(&action.sa_mask);
        sigaction(number, &action, nullptr);
    }
}

bool IsInterrupted() {
    return taken != 0;
}

void EndInterrupted() {
    std::signal(taken, SIG_DFL);
    raise(taken);
    _exit(2);
}
