// The one form that every log statement of the system has.
//
// KQ_LOG_ERROR(component, text, ...) and its four siblings ask Logger::IsNeedToLog first and evaluate the message's
// arguments only after a yes. The text is a printf format; it brings its own newline.
//
//     KQ_LOG_ERROR("service_debug", "failed to create folder: '%s'\n", folder.c_str());
#pragma once

#include <string_view>

#include "log/logger.h"

namespace log_statement {

// The process id, as "%5d" wants it. Source: getpid(2).
int ProcessId();

// A short handle for telling the threads of one run apart: pthread_self() modulo 100000. Two threads may share it.
// Source: pthread_self(3).
int ThreadNumber();

// The text after the last "/" of a compile-time path. The result points into the argument.
constexpr const char* FileName(const char* path) {
    return path + (std::string_view(path).rfind('/') + 1);
}

}  // namespace log_statement

#define KQ_LOG_STATEMENT(level, tag, component, text, ...)                                                  \
    do {                                                                                                    \
        if (Logger::IsNeedToLog(level, component)) {                                                        \
            Logger::LogMsg(level, component, "(%5d:%5d) " tag " %s(%d): " text, log_statement::ProcessId(), \
                           log_statement::ThreadNumber(), log_statement::FileName(__FILE__),                \
                           __LINE__ __VA_OPT__(, ) __VA_ARGS__);                                            \
        }                                                                                                   \
    } while (false)

#define KQ_LOG_ERROR(component, ...) KQ_LOG_STATEMENT(Logger::LEVEL_ERROR, "[ERROR]", component, __VA_ARGS__)
#define KQ_LOG_WARNING(component, ...) KQ_LOG_STATEMENT(Logger::LEVEL_WARNING, "[WARNING]", component, __VA_ARGS__)
#define KQ_LOG_NOTE(component, ...) KQ_LOG_STATEMENT(Logger::LEVEL_NOTE, "[NOTE]", component, __VA_ARGS__)
#define KQ_LOG_INFO(component, ...) KQ_LOG_STATEMENT(Logger::LEVEL_INFO, "[INFO]", component, __VA_ARGS__)
#define KQ_LOG_DEBUG(component, ...) KQ_LOG_STATEMENT(Logger::LEVEL_DEBUG, "[DEBUG]", component, __VA_ARGS__)
