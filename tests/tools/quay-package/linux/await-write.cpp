#include "await-write.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

void AwaitWrite(const std::string& folder, const std::function<void()>& start) {
    const int watch = inotify_init1(IN_CLOEXEC);
    ASSERT_GE(inotify_add_watch(watch, folder.c_str(), IN_MODIFY), 0);
    start();
    pollfd poller = {watch, POLLIN, 0};
    ASSERT_EQ(poll(&poller, 1, 60000), 1) << "nothing was ever written";
    close(watch);
}
