#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QJsonArray>
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>

#include "quay-test.h"
#include "volume.h"

namespace fs = std::filesystem;

class PackTest : public QuayTest {
protected:
    // Packs under another umask, by way of a shell.
    Outcome PackUnder(const std::string& mask, const std::vector<std::string>& arguments) const {
        std::vector<std::string> all = {"/bin/sh",       "-c",  "umask " + mask + "; exec \"$@\"", "sh",
                                        KQ_PACKAGE_TOOL, "pack"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return RunProcess(all, environment_);
    }
};

// The same client, laid in another folder in another order, at another time, with other modes, packed under another
// umask, locale, time zone and language: the same bytes.
TEST_F(PackTest, GivesTheSameBytesAnywhere) {
    const std::string first = MakeClient();
    const std::string second = At("elsewhere/deeper/KelvaneQuay.app");
    fs::create_directories(second);
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(first)) {
        paths.push_back(entry.path().lexically_relative(first));
    }
    std::sort(paths.rbegin(), paths.rend());
    for (const fs::path& path : paths) {
        fs::create_directories((second / path).parent_path());
        if (fs::is_directory(fs::symlink_status(first / path))) {
            fs::create_directory(second / path);
        } else {
            fs::copy(first / path, second / path, fs::copy_options::copy_symlinks);
        }
        if (fs::is_regular_file(fs::symlink_status(second / path))) {
            const bool isProgram = path.filename() == "cloud-quay-ui";
            fs::permissions(second / path, fs::perms(isProgram ? 0700 : 0600));
            fs::last_write_time(second / path, fs::file_time_type::clock::now() - std::chrono::hours(50000));
        }
    }
    for (const char* format : {"zip", "tar.gz", "tar.xz", "tar.zst", "tar"}) {
        SCOPED_TRACE(format);
        environment_["LANG"] = "C.UTF-8";
        environment_["TZ"] = "UTC";
        EXPECT_EQ(PackUnder("022", {first, "-o", At("one"), "--build", "7", "--format", format}).exitCode, 0);
        environment_.erase("LANG");
        environment_["LC_ALL"] = "C";
        environment_["TZ"] = "Asia/Tokyo";
        EXPECT_EQ(PackUnder("077", {second + "/", "-o", At("two"), "--build", "7", "--format", format}).exitCode, 0);
        environment_.erase("LC_ALL");
        const std::string one = Read(At("one"));
        EXPECT_TRUE(one == Read(At("two")));
        environment_["SOURCE_DATE_EPOCH"] = "1600000000";
        EXPECT_EQ(PackUnder("022", {first, "-o", At("two"), "--build", "7", "--format", format}).exitCode, 0);
        environment_.erase("SOURCE_DATE_EPOCH");
        EXPECT_FALSE(one == Read(At("two")));
        EXPECT_EQ(Codes(RunJson({"check", At("one")}, 0)), std::set<std::string>());
    }
    EXPECT_EQ(fs::status(At("one")).permissions(), fs::perms(0644));
}

TEST_F(PackTest, StampsInfoAndKeepsTheRestOfIt) {
    const std::string client = MakeClient();
    Write(client + "/Contents/Resources/INFO",
          "[General]\r\nchannel=beta\r\n[Version]\nmajor_version=4\nbuild_version=1\ncode_name=heron\n");
    const QJsonObject packed = RunJson({"pack", client, "-o", At("p.kpk"), "--build", "99", "--minor", "5"}, 0)
                                   .value(QStringLiteral("versions"))
                                   .toObject();
    EXPECT_EQ(packed.value(QStringLiteral("major")).toString(), QStringLiteral("4"));
    EXPECT_EQ(packed.value(QStringLiteral("minor")).toString(), QStringLiteral("5"));
    EXPECT_EQ(packed.value(QStringLiteral("icon_overlay")).toString(), QStringLiteral("0"));
    MakeBundle(At("p.kpk"));
    EXPECT_EQ(Read(At("bundle/Contents/Resources/INFO")),
              "[Version]\nmajor_version=4\nminor_version=5\nbuild_version=99\nicon_overlay_version=0\n"
              "code_name=heron\n[General]\nchannel=beta\n");
}

// Inputs that are refused, each with its code, and with nothing written.
TEST_F(PackTest, RefusesWhatCantBeMended) {
    const struct {
        const char* code;
        std::function<void(const std::string& contents)> spoil;
    } inputs[] = {
        {"KQ501", [](const std::string& c) { fs::remove(c + "/MacOS/cloud-quay-ui"); }},
        {"KQ502", [](const std::string& c) { fs::permissions(c + "/MacOS/cloud-quay-ui", fs::perms(0644)); }},
        {"KQ503", [](const std::string& c) { fs::resize_file(c + "/MacOS/cloud-quay-ui", 0); }},
        {"KQ306",
         [this](const std::string& c) {
             Write(c + "/MacOS/worker",
                   "\x7f"
                   "ELF");
         }},
        {"KQ401", [](const std::string& c) { fs::create_symlink("/usr", c + "/l"); }},
        {"KQ402", [](const std::string& c) { fs::create_symlink("../../client", c + "/l"); }},
        {"KQ404", [](const std::string& c) { fs::create_symlink("nowhere", c + "/l"); }},
        {"KQ405", [](const std::string& c) { fs::create_symlink("l", c + "/l"); }},
        {"KQ302", [](const std::string& c) { ASSERT_EQ(mkfifo((c + "/fifo").c_str(), 0600), 0); }},
        {"KQ302",
         [](const std::string& c) {
             const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
             sockaddr_un address = {};
             address.sun_family = AF_UNIX;
             ASSERT_LT(c.size() + 3, sizeof(address.sun_path));
             (c + "/s").copy(address.sun_path, sizeof(address.sun_path) - 1);
             ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
             close(descriptor);
         }},
        {"KQ206", [this](const std::string& c) { Write(c + "/Ünit", ""), Write(c + "/üNIT", ""); }},
        {"KQ215", [this](const std::string& c) { Write(c + "/e\xcc\x81", ""); }},
        {"KQ201", [this](const std::string& c) { Write(c + "/\xe9", ""); }},
        {"KQ208", [this](const std::string& c) { Write(c + "/a\rb", ""); }},
        {"KQ213", [this](const std::string& c) { Write(c + "/a\\b", ""); }},
        {"KQ210", [this](const std::string& c) { Write(c + "/../README", ""); }},
        {"KQ511", [this](const std::string& c) { Write(c + "/Info.plist", "<plist><dict/></plist>"); }},
        {"KQ504",
         [](const std::string& c) { fs::remove(c + "/Resources/INFO"), fs::create_directory(c + "/Resources/INFO"); }},
    };
    int number = 0;
    for (const auto& input : inputs) {
        SCOPED_TRACE(input.code);
        const std::string client = MakeClient("c" + std::to_string(++number));
        input.spoil(client + "/Contents");
        EXPECT_EQ(Codes(RunJson({"pack", client, "-o", At("out.kpk"), "--build", "7"}, 1)),
                  std::set<std::string>{input.code});
        EXPECT_FALSE(fs::exists(At("out.kpk")));
        fs::remove_all(client);
    }
}

// Inputs that are mended: said so, and the package is good.
TEST_F(PackTest, MendsWhatItCan) {
    const std::string contents = MakeClient() + "/Contents";
    fs::create_hard_link(contents + "/Resources/large", contents + "/Resources/twin");
    fs::permissions(contents + "/MacOS/cloud-quay-ui", fs::perms(06777));
    Write(contents + "/Resources/._large", "attributes");
    Write(contents + "/.DS_Store", "");
    Write(contents + "/.git/config", "");
    const QJsonObject packed = RunJson({"pack", At("client"), "-o", At("p.kpk"), "--build", "7"}, 0);
    std::multiset<std::string> codes;
    for (const QJsonValue& mended : packed.value(QStringLiteral("mended")).toArray()) {
        codes.insert(mended.toObject().value(QStringLiteral("code")).toString().toStdString());
    }
    EXPECT_EQ(codes, (std::multiset<std::string>{"KQ211", "KQ212", "KQ212", "KQ301", "KQ301", "KQ303"}));
    EXPECT_EQ(Codes(RunJson({"check", At("p.kpk")}, 0)), std::set<std::string>());
    EXPECT_EQ(packed.value(QStringLiteral("entries")).toInt(), 11);
}

TEST_F(PackTest, WrongUsageIsTwo) {
    const std::string client = MakeClient();
    const std::vector<std::vector<std::string>> usages = {
        {},
        {"unpack"},
        {"pack"},
        {"pack", client},
        {"pack", client, "-o", At("p")},
        {"pack", client, "-o", At("p"), "--build", "0"},
        {"pack", client, "-o", At("p"), "--build", "7x"},
        {"pack", client, "-o", At("p"), "--build", "7", "--format", "rar"},
        {"pack", client, "-o", At("p"), "--build", "7", "--major", "1\n[Version]"},
        {"pack", client, "-o", client + "/Contents/p", "--build", "7"},
        {"pack", client, "-o", At("no/such/folder/p"), "--build", "7"},
        {"pack", client, "-o", At(""), "--build", "7"},
        {"pack", client, client, "-o", At("p"), "--build", "7"},
        {"pack", At("nothing"), "-o", At("p"), "--build", "7"},
        {"bundle", "--launcher", KQ_LAUNCHER, "-o", At("b")},
        {"bundle", "--launcher", KQ_LAUNCHER, "--package", At("nothing"), "-o", At("b")},
        {"check", At("nothing")},
        {"check", client, "--frobnicate"},
        {"list", At("nothing")},
        {"explain", At("nothing")},
    };
    for (const auto& usage : usages) {
        const Outcome outcome = Run(usage);
        EXPECT_EQ(outcome.exitCode, 2) << ::testing::PrintToString(usage);
        EXPECT_NE(outcome.errors, "") << ::testing::PrintToString(usage);
    }
    EXPECT_FALSE(fs::exists(At("p")));
    for (const char* command : {"pack", "bundle", "check", "list", "explain"}) {
        const Outcome help = Run({command, "--help"});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_NE(help.output.find(command), std::string::npos);
    }
    EXPECT_NE(RunJson({"list", At("nothing")}, 2).value(QStringLiteral("error")).toString(), QString());
}

// A run that is ended while it writes leaves what stood there before.
TEST_F(PackTest, AnEndedRunLeavesTheOldOutput) {
    const std::string client = MakeClient();
    // Takes long to read and no room to hold.
    Write(client + "/Contents/Resources/sparse", "");
    fs::resize_file(client + "/Contents/Resources/sparse", std::uintmax_t{64} << 30);
    for (const int number : {SIGTERM, SIGINT, SIGKILL}) {
        const std::string out = At("out-" + std::to_string(number));
        Write(out + "/p.kpk", "the old one");
        const int watch = inotify_init1(IN_CLOEXEC);
        ASSERT_GE(inotify_add_watch(watch, out.c_str(), IN_MODIFY), 0);
        Process process({KQ_PACKAGE_TOOL, "pack", client, "-o", out + "/p.kpk", "--build", "8"}, environment_);
        pollfd poller = {watch, POLLIN, 0};
        ASSERT_EQ(poll(&poller, 1, 60000), 1) << "nothing was ever written";
        process.Signal(number);
        EXPECT_EQ(process.Wait().signal, number);
        close(watch);
        EXPECT_EQ(Read(out + "/p.kpk"), "the old one");
        if (number != SIGKILL) {
            EXPECT_EQ(Names(out), std::set<std::string>{"p.kpk"});
        }
    }
}

TEST_F(PackTest, AFullDiskLeavesTheOldOutput) {
    const std::string client = MakeClient();
    Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    Write(At("volume/p.kpk"), "the old one");
    const Outcome outcome = Run({"pack", client, "-o", At("volume/p.kpk"), "--build", "8", "--format", "tar"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.errors.find("No space left"), std::string::npos) << outcome.errors;
    EXPECT_EQ(Read(At("volume/p.kpk")), "the old one");
    EXPECT_EQ(Names(At("volume")), std::set<std::string>{"p.kpk"});
}
