// What a log statement costs: enabled, beside spdlog's basic file sink and beside a bare write(2) of the same bytes,
// and disabled, in nanoseconds and allocations. The ratios that count are printed at the end.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "log/log-statement.h"

namespace {

std::atomic<long> allocations{0};

}  // namespace

// Not inlined, since GCC would then see malloc meet delete at the call and take it for a mistake.
[[gnu::noinline]] void* operator new(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* const block = std::malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}

[[gnu::noinline]] void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

namespace {

namespace fs = std::filesystem;

constexpr int kMessages = 100'000;  // for each run of an enabled statement
constexpr int kRuns = 9;            // interleaved; their median counts

constexpr const char* kLogger = "logger";
constexpr const char* kSpdlog = "spdlog";
constexpr const char* kWrite = "write";
constexpr const char* kDisabled = "disabled";
constexpr const char* kAllocations = "allocations";

// What a statement typically takes: a path and a number.
const std::string kPath = "/home/somebody/.KelvaneQuay/app/bundle.app/Contents";

// A folder for the log files, next to where the benchmark is started, so that they lie on a real disk.
fs::path folder;

std::string FirstLine(const fs::path& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line + "\n";
}

void Statement(int number) {
    KQ_LOG_WARNING("service_debug", "failed to create folder: '%s' (%d)\n", kPath.c_str(), number);
}

void OpenLogger(const fs::path& path) {
    // One generation is kept, so that the disk holds little. A rotation comes every fifty thousand messages.
    if (Logger::Initialize(Logger::TYPE_FILE, path.string(), "", 2, Logger::SCOPE_THREAD) != 0) {
        throw std::runtime_error("can't open " + path.string());
    }
}

// A line of the same form from spdlog: only the thread number is another one, the kernel's.
std::shared_ptr<spdlog::logger> OpenSpdlog(const fs::path& path) {
    auto sink = std::make_shared<spdlog::sinks::basic_file_sink_mt>(path.string(), true);
    auto logger = std::make_shared<spdlog::logger>("bench", std::move(sink));
    logger->set_pattern("%Y-%m-%dT%H:%M:%S (%5P:%5t) [WARNING] %s(%#): %v");
    logger->flush_on(spdlog::level::warn);
    return logger;
}

void EnabledLogger(benchmark::State& state) {
    OpenLogger(folder / "logger.log");
    for (auto _ : state) {
        Statement(13);
    }
}

void EnabledSpdlog(benchmark::State& state) {
    const auto logger = OpenSpdlog(folder / "spdlog.log");
    for (auto _ : state) {
        logger->log(spdlog::source_loc{__FILE__, __LINE__, ""}, spdlog::level::warn,
                    "failed to create folder: '{}' ({})", kPath, 13);
    }
}

void BareWrite(benchmark::State& state) {
    OpenLogger(folder / "one-line.log");
    Statement(13);
    const std::string line = FirstLine(folder / "one-line.log");
    const int file = open((folder / "write.log").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644);
    if (file == -1) {
        throw std::runtime_error("can't open the file to write to");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(write(file, line.data(), line.size()));
    }
    close(file);
}

void Disabled(benchmark::State& state) {
    // Level entries as in a real run, so that the look-up finds a filled table.
    std::ofstream(folder / "launcher.debug")
        << "launcher_debug=4\nservice_debug=4\nextractor_debug=4\nfile_op_debug=4\n";
    if (Logger::Initialize(Logger::TYPE_FILE, (folder / "disabled.log").string(), (folder / "launcher.debug").string(),
                           2, Logger::SCOPE_THREAD) != 0) {
        throw std::runtime_error("can't open the log file");
    }
    const long before = allocations;
    for (auto _ : state) {
        // The longest name of a component: 15 characters.
        KQ_LOG_DEBUG("extractor_debug", "not written: '%s'\n", kPath.c_str());
    }
    state.counters[kAllocations] =
        benchmark::Counter(static_cast<double>(allocations - before), benchmark::Counter::kAvgIterations);
}

// Shows the usual lines and keeps the medians.
class Medians : public benchmark::ConsoleReporter {
public:
    Medians() : ConsoleReporter(isatty(STDOUT_FILENO) == 1 ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median") {
                nanoseconds[run.run_name.function_name] = run.GetAdjustedRealTime();
                const auto counter = run.counters.find(kAllocations);
                if (counter != run.counters.end()) {
                    allocations_per_call = counter->second.value;
                }
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> nanoseconds;
    double allocations_per_call = 0;
};

// For the eye: the comparison means something only where the two lines differ in their numbers alone.
void PrintLines() {
    const std::string ours = FirstLine(folder / "logger.log");
    const std::string theirs = FirstLine(folder / "spdlog.log");
    std::printf("\nlogger: %sspdlog: %s", ours.c_str(), theirs.c_str());
}

void PrintTable(const Medians& medians) {
    const auto of = [&](const char* name) { return medians.nanoseconds.at(name); };
    std::printf("\n%-34s %10s %10s %8s\n", "enabled, flushed each time", "ns", "aim", "ratio");
    std::printf("%-34s %10.0f\n", "log statement", of(kLogger));
    std::printf("%-34s %10.0f %10s %8.2f\n", "spdlog's basic file sink", of(kSpdlog), "<= 1",
                of(kLogger) / of(kSpdlog));
    std::printf("%-34s %10.0f %10s %8.2f\n", "bare write(2)", of(kWrite), "<= 2", of(kLogger) / of(kWrite));
    std::printf("\n%-34s %10s %10s %8s\n", "disabled", "ns", "aim", "allocs");
    std::printf("%-34s %10.1f %10s %8.2f\n", "log statement", of(kDisabled), "0", medians.allocations_per_call);
}

}  // namespace

int main(int argc, char** argv) {
    std::string pattern = (fs::current_path() / "log-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        std::perror(pattern.c_str());
        return 1;
    }
    folder = pattern;

    const auto add = [](const char* name, void (*body)(benchmark::State&)) {
        return benchmark::RegisterBenchmark(name, body)->Repetitions(kRuns)->ReportAggregatesOnly(true);
    };
    add(kLogger, EnabledLogger)->Iterations(kMessages);
    add(kSpdlog, EnabledSpdlog)->Iterations(kMessages);
    add(kWrite, BareWrite)->Iterations(kMessages);
    add(kDisabled, Disabled);

    // What the machine does beside us then meets all of them alike.
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaved.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());

    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    // A filter on the command line may have left some out.
    if (medians.nanoseconds.size() == 4) {
        PrintLines();
        PrintTable(medians);
    }
    fs::remove_all(folder);
    return 0;
}
