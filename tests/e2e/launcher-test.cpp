#include "launcher-test.h"

#include <regex>
#include <sstream>

static std::string Info(int build) {
    return "[Version]\nmajor_version=1\nminor_version=2\nbuild_version=" + std::to_string(build) +
           "\nicon_overlay_version=3\n";
}

LauncherTest::LauncherTest()
    // A FIFO that is open for both never ends.
    : mailbox_({"/bin/bash", "-c", "mkfifo -m 666 \"$0\" && exec cat <>\"$0\"", At("mailbox")}) {
    fs::create_directory(home_);
    fs::create_directory(At("run"));
    fs::permissions(At("run"), fs::perms::owner_all);
    fs::permissions(folder(), static_cast<fs::perms>(0755));
    environment_ = {{"HOME", home_},     {"KQ_TEST_MAILBOX", At("mailbox")},
                    {"LANG", "C.UTF-8"}, {"QT_QPA_PLATFORM", "offscreen"},
                    {"TZ", "UTC"},       {"XDG_RUNTIME_DIR", At("run")}};
    // What the sanitizers' runtimes were told goes on to the launcher.
    for (const char* name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (const char* value = std::getenv(name)) {
            environment_[name] = value;
        }
    }
}

void LauncherTest::LayBundle(int build) {
    fs::create_directories(bundle_ + "/Contents/MacOS");
    fs::create_directories(bundle_ + "/Contents/Resources/images");
    fs::copy_file(KQ_LAUNCHER, Arguments().front(), fs::copy_options::skip_existing);
    fs::copy(KQ_ICON, bundle_ + "/Contents/Resources/images", fs::copy_options::skip_existing);
    Write(bundle_ + "/Contents/Resources/INFO", Info(build));
    WritePackage(Package(), ClientEntries(build));
}

std::vector<PackageEntry> LauncherTest::ClientEntries(int build) {
    const std::string number = std::to_string(build);
    const std::string script =
        "#!/bin/sh\necho \"started " + number + " in $PWD${TZ+, zone $TZ}\" > \"$KQ_TEST_MAILBOX\"\n";
    return {{"Contents/", "", S_IFDIR, 0755},
            {"Contents/Resources/", "", S_IFDIR, 0755},
            {"Contents/Resources/only-in-" + number, number},
            {"Contents/Resources/current", "only-in-" + number, S_IFLNK, 0777},
            {"Contents/Resources/empty/", "", S_IFDIR, 0755},
            {"Contents/Resources/Größe und 日本語.txt", "non-ASCII"},
            {"Contents/Resources/large", std::string(300000, static_cast<char>('a' + build % 26))},
            {"Contents/MacOS/", "", S_IFDIR, 0755},
            {"Contents/MacOS/cloud-quay-ui", script, S_IFREG, 0755},
            {"Contents/Resources/INFO", Info(build)}};
}

Tree LauncherTest::ClientTree(int build) const {
    const std::string root = At("expected-" + std::to_string(build));
    if (!fs::exists(root)) {
        fs::create_directory(root);
        WritePackage(root + ".tar", ClientEntries(build), "gnutar");
        RunProcess({"tar", "-xpf", root + ".tar", "-C", root});
    }
    return ReadTree(root);
}

void LauncherTest::InstallClient(int build) const {
    ClientTree(build);
    fs::create_directories(home_ + "/.KelvaneQuay");
    fs::copy(At("expected-" + std::to_string(build)), App(),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void LauncherTest::LogEverything() const {
    Write(bundle_ + "/Contents/Resources/log/launcher.debug",
          "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=6\n");
}

Lines LauncherTest::Arguments(Lines prefix) const {
    prefix.push_back(bundle_ + "/Contents/MacOS/kelvane-quay-launcher");
    return prefix;
}

Lines LauncherTest::Traced(const Lines& arguments) const {
    // A traced process can't look for leaks.
    Lines all = {"/usr/bin/env", "ASAN_OPTIONS=detect_leaks=0", "/usr/bin/strace", "-f", "-qq", "-o", At("trace")};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

std::string LauncherTest::StartedLine(int build) const {
    const auto zone = environment_.find("TZ");
    return "started " + std::to_string(build) + " in " + App() + "/Contents/MacOS" +
           (zone == environment_.end() ? "" : ", zone " + zone->second);
}

void LauncherTest::ExpectLaunched(const Outcome& outcome, int build) {
    EXPECT_EQ(outcome.exitCode, 0) << "signal " << outcome.signal;
    EXPECT_EQ(outcome.output + outcome.errors, "");
    EXPECT_EQ(mailbox_.ReadLine(), StartedLine(build));
}

Tree LauncherTest::HomeWith(int build, Tree others) const {
    others["KelvaneQuay.app"] = "755 folder";
    for (const auto& [path, description] : ClientTree(build)) {
        others["KelvaneQuay.app/" + path] = description;
    }
    return others;
}

Lines LauncherTest::LogLines() const {
    static const std::regex start(
        R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d \( *\d+: *\d+\) (\[[A-Z]+\] )[a-z-]+\.cpp\(\d+\): )");
    std::istringstream text(std::regex_replace(Read(Private("log/launcher.log")), start, "$1"));
    Lines lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

Tree LauncherTest::PrivateTree() const {
    Tree tree = ReadTree(home_ + "/.KelvaneQuay");
    tree.erase("log");
    tree.erase("log/launcher.log");
    return tree;
}
