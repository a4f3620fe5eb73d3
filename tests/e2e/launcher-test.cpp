#include "launcher-test.h"

#include <regex.h>

#include <filesystem>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr char kBinary[] = "Contents/MacOS/cloud-quay-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

std::string Info(int build) {
    return "[Version]\nmajor_version=1\nminor_version=2\nbuild_version=" + std::to_string(build) +
           "\nicon_overlay_version=3\n";
}

std::string ClientScript(int build) {
    return "#!/bin/sh\necho \"started " + std::to_string(build) + " in $PWD\" > \"$KQ_TEST_MAILBOX\"\n";
}

}  // namespace

LauncherTest::LauncherTest() : home_(At("home")), mailbox_(At("mailbox")) {
    fs::create_directories(home_);
    fs::create_directories(At("run"));
    fs::permissions(At("run"), fs::perms::owner_all);
    environment_ = {
        {"HOME", home_},
        {"KQ_TEST_MAILBOX", mailbox_.path()},
        {"LANG", "C.UTF-8"},
        {"PATH", "/usr/bin:/bin"},
        {"QT_QPA_PLATFORM", "offscreen"},
        {"TZ", "UTC"},
        {"XDG_RUNTIME_DIR", At("run")},
    };
    // What the sanitizers' runtimes were told goes on to the launcher.
    for (const char* name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (const char* value = std::getenv(name)) {
            environment_[name] = value;
        }
    }
}

void LauncherTest::LayBundle(int build) {
    const std::string binary = Arguments().front();
    fs::create_directories(fs::path(binary).parent_path());
    if (!fs::exists(binary)) {
        fs::copy_file(KQ_LAUNCHER, binary);
    }
    Write(At("bundle/Contents/Resources/INFO"), Info(build));
    WritePackage(At("bundle/Contents/Resources/package/tessaly.kpk"), ClientEntries(build));
}

std::vector<PackageEntry> LauncherTest::ClientEntries(int build) {
    const std::string number = std::to_string(build);
    return {
        {"Contents/", "", S_IFDIR, 0755},
        {"Contents/Resources/", "", S_IFDIR, 0755},
        {"Contents/Resources/only-in-" + number, number},
        {"Contents/Resources/current", "only-in-" + number, S_IFLNK, 0777},
        {"Contents/Resources/empty/", "", S_IFDIR, 0755},
        {"Contents/Resources/Größe und 日本語.txt", "non-ASCII"},
        {"Contents/Resources/large", std::string(300000, static_cast<char>('a' + build % 26))},
        {"Contents/MacOS/", "", S_IFDIR, 0755},
        {kBinary, ClientScript(build), S_IFREG, 0755},
        {kInfo, Info(build)},
    };
}

Tree LauncherTest::ClientTree(int build) const {
    const std::string folder = At("expected-" + std::to_string(build));
    if (!fs::exists(folder)) {
        for (const PackageEntry& entry : ClientEntries(build)) {
            const std::string path = folder + "/" + entry.path;
            if (entry.type == S_IFDIR) {
                fs::create_directories(path);
            } else if (entry.type == S_IFLNK) {
                fs::create_directories(fs::path(path).parent_path());
                fs::create_symlink(entry.content, path);
            } else {
                Write(path, entry.content);
                fs::permissions(path, static_cast<fs::perms>(entry.mode));
            }
        }
    }
    return ReadTree(folder);
}

void LauncherTest::InstallClient(int build) const {
    ClientTree(build);
    fs::create_directories(home_ + "/.KelvaneQuay");
    fs::copy(At("expected-" + std::to_string(build)), App(),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void LauncherTest::LogEverything() const {
    Write(At("bundle/Contents/Resources/log/launcher.debug"),
          "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=6\n");
}

std::string LauncherTest::StartedLine(int build) const {
    return "started " + std::to_string(build) + " in " + App() + "/Contents/MacOS";
}

void LauncherTest::ExpectLaunched(const Outcome& outcome, int build) {
    EXPECT_FALSE(outcome.timedOut);
    EXPECT_EQ(outcome.exitCode, 0) << "signal " << outcome.signal;
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(build));
}

std::vector<std::string> LauncherTest::LogLines() const {
    regex_t form;
    EXPECT_EQ(regcomp(&form,
                      "^[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2} \\( *[0-9]+: *[0-9]+\\) (\\[[A-Z]+\\]) "
                      "[a-z-]+\\.cpp\\([0-9]+\\): (.*)$",
                      REG_EXTENDED),
              0);
    std::vector<std::string> lines;
    std::istringstream text(Read(Private("log/launcher.log")));
    for (std::string line; std::getline(text, line);) {
        regmatch_t match[3] = {};
        EXPECT_EQ(regexec(&form, line.c_str(), 3, match, 0), 0) << line;
        const auto part = [&](int at) {
            return line.substr(static_cast<std::size_t>(match[at].rm_so),
                               static_cast<std::size_t>(match[at].rm_eo - match[at].rm_so));
        };
        lines.push_back(part(1) + " " + part(2));
    }
    regfree(&form);
    return lines;
}

Tree LauncherTest::PrivateTree() const {
    Tree tree = ReadTree(home_ + "/.KelvaneQuay");
    tree.erase("log");
    tree.erase("log/launcher.log");
    return tree;
}
