// What the tests of the file operations share.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>

#include "file/file-op.h"
#include "log/logger.h"
#include "test-folder.h"

namespace fs = std::filesystem;

class FileOpTest : public FolderTest {
protected:
    FileOpTest() { umask(022); }

    ~FileOpTest() override {
        if (logsEverything_) {
            SetLogLevel("4");
        }
    }

    // Has all levels logged until the end of the test, to standard error as before.
    void LogEverything() {
        logsEverything_ = true;
        SetLogLevel("7");
    }

    // What `action` logs, with the prefix of each line cut down to its level: "ERROR mkstemp(...): ...\n". A line that
    // is not of the one form of all log statements stays whole.
    template <typename Action>
    static std::string LogOf(Action action) {
        std::istringstream lines(StandardErrorOf(action));
        std::string log;
        for (std::string line; std::getline(lines, line);) {
            char level[16] = "";
            int unused = 0;
            int length = 0;  // stays 0 unless all of the prefix is there
            std::sscanf(line.c_str(), "%d-%d-%dT%d:%d:%d (%d:%d) [%15[A-Z]] %*[a-z-].cpp(%d): %n", &unused, &unused,
                        &unused, &unused, &unused, &unused, &unused, &unused, level, &unused, &length);
            // The text itself may begin with a blank, of which the scan takes any number.
            const std::size_t text = length == 0 ? 0 : line.find("): ") + 3;
            log += (length == 0 ? "" : level + std::string(" ")) + line.substr(text) + "\n";
        }
        return log;
    }

    static mode_t ModeOf(const std::string& path) {
        struct stat status = {};
        EXPECT_EQ(0, lstat(path.c_str(), &status)) << path;
        return status.st_mode & 07777;
    }

    // A folder so deep that its absolute path has more than 4095 bytes, made the working folder, until "/" is again.
    void EnterAbyss() const {
        ASSERT_EQ(0, chdir(folder().c_str()));
        const std::string name(250, 'd');
        for (int level = 0; level < 17; ++level) {
            ASSERT_EQ(0, mkdir(name.c_str(), 0777));
            ASSERT_EQ(0, chdir(name.c_str()));
        }
    }

private:
    void SetLogLevel(const std::string& level) const {
        Write(At("levels"), "file_op_debug=" + level + "\n");
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_STDERR, "", At("levels"), 1, Logger::SCOPE_NONE));
    }

    bool logsEverything_ = false;
};
