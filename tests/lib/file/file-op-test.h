// What the tests of the file operations share.
#pragma once

#include <regex>

#include "file/file-op.h"
#include "log/logger.h"
#include "test-folder.h"

class FileOpTest : public FolderTest {
protected:
    ~FileOpTest() override { LogUpTo(Logger::LEVEL_WARNING); }

    // Sets what is logged until the end of the test, to standard error as before.
    void LogUpTo(Logger::Level level) const {
        Write(At("levels"), "file_op_debug=" + std::to_string(level) + "\n");
        Logger::Initialize(Logger::TYPE_STDERR, "", At("levels"), 1, Logger::SCOPE_NONE);
        fs::remove(At("levels"));
    }

    // What `action` logs, with the prefix of each line cut down to its level: "ERROR mkstemp(...): ...\n".
    static std::string LogOf(const std::function<void()>& action) {
        static const std::regex prefix(R"([-\d]+T[:\d]+ \( *\d+: *\d+\) \[([A-Z]+)\] [a-z-]+\.cpp\(\d+\): )");
        return std::regex_replace(StandardErrorOf(action), prefix, "$1 ");
    }
};
