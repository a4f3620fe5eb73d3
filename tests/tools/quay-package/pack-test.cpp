#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFileSystemWatcher>
#include <QJsonArray>
#include <QSignalSpy>
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <random>

#include "quay-test.h"
#include "volume.h"

namespace fs = std::filesystem;

class PackTest : public QuayTest {};

// The same client, laid in another folder in another order, at another time, with other modes, packed under another
// umask, locale and time zone: the same bytes.
TEST_F(PackTest, GivesTheSameBytesAnywhere) {
    const std::string first = MakeClient();
    EXPECT_EQ(Run({"pack", first, "-o", At("one"), "--build", "7"}).exitCode, 0);
    EXPECT_EQ(fs::status(At("one")).permissions(), fs::perms(0644));
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(first)) {
        paths.push_back(entry.path().lexically_relative(first));
    }
    environment_["LC_ALL"] = "C";
    environment_["TZ"] = "Asia/Tokyo";
    std::mt19937 source(3);
    for (int round = 0; round < 5; ++round) {
        const fs::path second = At("elsewhere-" + std::to_string(round) + "/KelvaneQuay.app");
        std::shuffle(paths.begin(), paths.end(), source);
        for (const fs::path& path : paths) {
            fs::create_directories((second / path).parent_path());
            if (fs::is_directory(fs::symlink_status(first / path))) {
                fs::create_directories(second / path);
            } else {
                fs::copy(first / path, second / path, fs::copy_options::copy_symlinks);
            }
            if (fs::is_regular_file(fs::symlink_status(second / path))) {
                fs::permissions(second / path, fs::perms(path.filename() == "cloud-quay-ui" ? 0700 : 0600));
                fs::last_write_time(second / path, fs::file_time_type::clock::now() - std::chrono::hours(50000));
            }
        }
        const std::string command = "umask 077; exec \"$0\" pack \"$@\" --build 7";
        EXPECT_EQ(RunProcess({"/bin/sh", "-c", command, tool_, second.string() + "/", "-o", At("two")}, environment_)
                      .exitCode,
                  0);
        EXPECT_TRUE(Read(At("one")) == Read(At("two")));
    }
    environment_["SOURCE_DATE_EPOCH"] = "1600000000";
    EXPECT_EQ(Run({"pack", first, "-o", At("two"), "--build", "7"}).exitCode, 0);
    EXPECT_FALSE(Read(At("one")) == Read(At("two")));
    EXPECT_EQ(Check(At("two")), Codes());
}

// The launcher reads the build that was asked for, and what else INFO holds is kept; else it is refused.
TEST_F(PackTest, StampsInfoSoThatTheLauncherReadsIt) {
    const struct {
        const char* present;
        const char* stamped;  // null: refused
    } infos[] = {
        {"[General]\r\nchannel=beta\r\n[Version]\nmajor_version=4\nbuild_version=1\ncode_name=heron\n",
         "[Version]\nmajor_version=4\nminor_version=5\nbuild_version=99\nicon_overlay_version=0\ncode_name=heron\n"
         "[General]\nchannel=beta\n"},
        {"", "[Version]\nmajor_version=0\nminor_version=5\nbuild_version=99\nicon_overlay_version=0\n"},
        {"top=1\n\xef\xbb\xbf",
         "top=1\n\xef\xbb\xbf\n[Version]\nmajor_version=0\nminor_version=5\nbuild_version=99\nicon_overlay_version="
         "0\n"},
        {"\xef\xbb\xbf[Version]\nbuild_version=1\n",
         "[Version]\nmajor_version=0\nminor_version=5\nbuild_version=99\nicon_overlay_version=0\n"},
        {" [Version]\n build_version = 1\n[Version]\nbuild_version=2\n; build_version=3\n",
         "[Version]\nmajor_version=0\nminor_version=5\nbuild_version=99\nicon_overlay_version=0\n; build_version=3\n"},
        {"[Version]\nbuild%5Fversion=1\n", nullptr},
        {"[%56ersion]\nbuild_version=1\n", nullptr},
        {"[ Version ]\nbuild_version=1\n", nullptr},
        {"[Version];x\nbuild_version=1\n", nullptr},
        {"Version\\build_version=1\n",
         "Version\\build_version=1\n[Version]\nmajor_version=0\nminor_version=5\nbuild_version=99\nicon_overlay_"
         "version=0\n"},
    };
    const std::string client = MakeClient();
    for (const auto& info : infos) {
        Write(client + "/Contents/Resources/INFO", info.present);
        const QJsonObject packed = RunJson({"pack", client, "-o", At("p.kpk"), "--build", "99", "--minor", "5"},
                                           info.stamped == nullptr ? 1 : 0);
        if (info.stamped == nullptr) {
            EXPECT_EQ(CodesOf(packed), Codes{"KQ513"}) << info.present;
            continue;
        }
        EXPECT_EQ(packed.value(QStringLiteral("versions")).toObject().value(QStringLiteral("minor")).toString(),
                  QStringLiteral("5"));
        MakeBundle(At("p.kpk"));
        EXPECT_EQ(Read(At("bundle/Contents/Resources/INFO")), info.stamped);
    }
}

// Inputs that are refused, each with its code, and with nothing written.
TEST_F(PackTest, RefusesWhatCantBeMended) {
    const struct {
        Codes codes;
        std::function<void(const std::string& contents)> spoil;
    } inputs[] = {
        {{"KQ501"}, [](const std::string& c) { fs::remove(c + "/MacOS/cloud-quay-ui"); }},
        {{"KQ502"}, [](const std::string& c) { fs::permissions(c + "/MacOS/cloud-quay-ui", fs::perms(0644)); }},
        {{"KQ503"}, [](const std::string& c) { fs::resize_file(c + "/MacOS/cloud-quay-ui", 5); }},
        {{"KQ306"}, [](const std::string& c) { Write(c + "/MacOS/worker", "#!/bin/sh\n"); }},
        {{"KQ401"}, [](const std::string& c) { fs::create_symlink("/usr", c + "/l"); }},
        {{"KQ402"}, [](const std::string& c) { fs::create_symlink("../../client", c + "/l"); }},
        {{"KQ302"}, [](const std::string& c) { ASSERT_EQ(mkfifo((c + "/fifo").c_str(), 0600), 0); }},
        {{"KQ302"},
         [](const std::string& c) {
             const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
             sockaddr_un address = {};
             address.sun_family = AF_UNIX;
             ASSERT_LT(c.size() + 3, sizeof(address.sun_path));
             (c + "/s").copy(address.sun_path, sizeof(address.sun_path) - 1);
             ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
             close(descriptor);
         }},
        {{"KQ206"}, [](const std::string& c) { Write(c + "/Ünit", ""), Write(c + "/üNIT", ""); }},
        {{"KQ206"}, [](const std::string& c) { Write(c + "/Resources/info", ""); }},
        {{"KQ210"}, [](const std::string& c) { Write(c + "/../README", ""); }},
        {{"KQ214"}, [](const std::string& c) { fs::remove_all(c + "/Resources"), Write(c + "/Resources", ""); }},
        {{"KQ403"},
         [](const std::string& c) {
             fs::rename(c + "/Resources", c + "/R"), fs::create_symlink("R", c + "/Resources");
         }},
        {{"KQ504"},
         [](const std::string& c) { fs::remove(c + "/Resources/INFO"), fs::create_directory(c + "/Resources/INFO"); }},
        {{"KQ504"},
         [](const std::string& c) {
             fs::remove(c + "/Resources/INFO"), fs::create_symlink("large", c + "/Resources/INFO");
         }},
        {{"KQ504"},
         [](const std::string& c) {
             fs::remove(c + "/Resources/INFO"), mkfifo((c + "/Resources/INFO").c_str(), 0600);
         }},
        {{"KQ512"}, [](const std::string& c) { Write(c + "/Resources/INFO", std::string(70000, '\n')); }},
    };
    for (const auto& input : inputs) {
        SCOPED_TRACE(*input.codes.begin());
        fs::remove_all(At("client"));
        const std::string client = MakeClient();
        input.spoil(client + "/Contents");
        EXPECT_EQ(CodesOf(RunJson({"pack", client, "-o", At("out.kpk"), "--build", "7"}, 1)), input.codes);
        EXPECT_FALSE(fs::exists(At("out.kpk")));
    }
}

// Inputs that are mended or left out: said so, and the package is good. With --keep-all nothing is left out.
TEST_F(PackTest, MendsWhatItCan) {
    const std::string contents = MakeClient() + "/Contents";
    fs::create_hard_link(contents + "/Resources/large", contents + "/Resources/twin");
    fs::permissions(contents + "/MacOS/cloud-quay-ui", fs::perms(06777));
    Write(contents + "/Resources/._large", "attributes");
    for (int number = 0; number < 30; ++number) {
        Write(contents + "/.git/" + std::to_string(number) + ".orig", "");
        Write(contents + "/Resources/" + std::to_string(number) + "~", "");
    }
    const QJsonObject packed = RunJson({"pack", At("client"), "-o", At("p.kpk"), "--build", "7"}, 0);
    std::map<std::string, int> counts;
    for (const QJsonValue& mended : packed.value(QStringLiteral("mended")).toArray()) {
        ++counts[mended.toObject().value(QStringLiteral("code")).toString().toStdString()];
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{{"KQ211", 1}, {"KQ212", 31}, {"KQ301", 2}, {"KQ303", 1}}));
    EXPECT_EQ(Check(At("p.kpk")), Codes());
    EXPECT_EQ(packed.value(QStringLiteral("entries")).toInt(), 11);
    EXPECT_EQ(RunJson({"pack", At("client"), "-o", At("p.kpk"), "--build", "7", "--keep-all"}, 0)
                  .value(QStringLiteral("entries"))
                  .toInt(),
              73);
    EXPECT_EQ(Check(At("p.kpk")), (Codes{"KQ211", "KQ212"}));
    EXPECT_EQ(Check(At("p.kpk"), {"--accept", "KQ211", "--accept", "KQ212"}), Codes());
}

TEST_F(PackTest, WrongUsageIsTwo) {
    const std::string client = MakeClient();
    ASSERT_EQ(mkfifo(At("fifo").c_str(), 0600), 0);
    const std::vector<std::vector<std::string>> usages = {
        {},
        {"unpack"},
        {"pack"},
        {"pack", client},
        {"pack", client, "-o", At("p")},
        {"pack", client, "-o", At("p"), "--build", "0"},
        {"pack", client, "-o", At("p"), "--build", "7x"},
        {"pack", client, "-o", At("p"), "--build", "7", "--format", "zip"},
        {"pack", client, "-o", At("p"), "--build", "7", "--home", "/"},
        {"pack", client, "-o", At("p"), "--build", "7", "--major", "1\n[Version]"},
        {"pack", client, "-o", client + "/Contents/p", "--build", "7"},
        {"pack", client, "-o", At("no/such/folder/p"), "--build", "7"},
        {"pack", client, "-o", At(""), "--build", "7"},
        {"pack", client, "-o", At("fifo"), "--build", "7"},
        {"pack", client, client, "-o", At("p"), "--build", "7"},
        {"pack", At("nothing"), "-o", At("p"), "--build", "7"},
        {"bundle", "--launcher", KQ_LAUNCHER, "-o", At("b")},
        {"bundle", "--launcher", KQ_LAUNCHER, "--package", At("nothing"), "-o", At("b")},
        {"check", At("nothing")},
        {"check", At("fifo")},
        {"check", client, "--frobnicate"},
        {"check", client, "--max-unpacked", "x"},
        {"list", At("nothing")},
        {"list", At("fifo")},
        {"explain", At("nothing")},
        {"verify", At("nothing")},
    };
    for (auto usage : usages) {
        const Outcome outcome = Run(usage);
        EXPECT_EQ(outcome.exitCode, 2) << ::testing::PrintToString(usage);
        EXPECT_NE(outcome.errors, "") << ::testing::PrintToString(usage);
        EXPECT_NE(RunJson(usage, 2).value(QStringLiteral("error")).toString(), QString());
    }
    EXPECT_FALSE(fs::exists(At("p")));
    for (const char* command : {"pack", "bundle", "check", "list", "explain", "verify"}) {
        EXPECT_NE(Run({command, "--help"}).output.find(command), std::string::npos);
        // An object has the same keys whatever the outcome.
        EXPECT_EQ(RunJson({command, At("nothing"), "--frobnicate"}, 2).keys(), RunJson({command}, 2).keys());
    }
    EXPECT_EQ(Run({"--version"}).output.substr(0, 13), "quay-package ");
}

namespace {

// Waits until a file comes into a folder.
void AwaitFile(const std::string& folder, const std::function<void()>& start) {
    const QFileSystemWatcher watcher({QString::fromStdString(folder)});
    QSignalSpy changes(&watcher, &QFileSystemWatcher::directoryChanged);
    start();
    ASSERT_TRUE(!changes.isEmpty() || changes.wait(60000)) << "nothing was ever written";
}

}  // namespace

// A run that is ended while it writes, or whose folder changes meanwhile, leaves what stood there before.
TEST_F(PackTest, AnEndedRunLeavesTheOldOutput) {
    const std::string client = MakeClient();
    // Takes long to read and no room to hold.
    Write(client + "/Contents/Resources/sparse", "");
    fs::resize_file(client + "/Contents/Resources/sparse", std::uintmax_t{3} << 30);
    for (const int number : {SIGTERM, SIGINT, SIGKILL}) {
        const std::string out = At("out-" + std::to_string(number));
        Write(out + "/p.kpk", "the old one");
        std::unique_ptr<Process> process;
        AwaitFile(out, [&] {
            process = std::make_unique<Process>(
                std::vector<std::string>{tool_, "pack", client, "-o", out + "/p.kpk", "--build", "8"}, environment_);
        });
        process->Signal(number);
        EXPECT_EQ(process->Wait().signal, number);
        EXPECT_EQ(Read(out + "/p.kpk"), "the old one");
        if (number != SIGKILL) {
            EXPECT_EQ(Names(out), std::set<std::string>{"p.kpk"});
        }
    }
}

TEST_F(PackTest, AChangedFolderIsNotPacked) {
    const std::string contents = MakeClient() + "/Contents";
    Write(At("out/p.kpk"), "the old one");
    const std::function<void()> changes[] = {
        [&] { Write(contents + "/Resources/only-in-7", "8"); },
        [&] { Write(contents + "/Resources/zz", "new"); },
        [&] { fs::remove(contents + "/z"), fs::create_symlink("x", contents + "/z"); },
    };
    for (const auto& change : changes) {
        fs::remove(contents + "/z");
        Write(contents + "/a", "");
        fs::resize_file(contents + "/a", 60 << 20);
        Write(contents + "/z", "z");
        std::unique_ptr<Process> process;
        AwaitFile(At("out"), [&] {
            process = std::make_unique<Process>(
                std::vector<std::string>{tool_, "pack", At("client"), "-o", At("out/p.kpk"), "--build", "8"},
                environment_);
        });
        change();
        const Outcome outcome = process->Wait();
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_NE(outcome.errors, "");
        EXPECT_EQ(Read(At("out/p.kpk")), "the old one");
        EXPECT_EQ(Names(At("out")), std::set<std::string>{"p.kpk"});
    }
}

TEST_F(PackTest, AFullDiskLeavesTheOldOutput) {
    const std::string client = MakeClient();
    std::mt19937 source(1);
    std::string noise(200 << 10, '\0');
    std::generate(noise.begin(), noise.end(), [&source] { return static_cast<char>(source()); });
    Write(client + "/Contents/Resources/noise", noise);
    Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    Write(At("volume/p.kpk"), "the old one");
    const Outcome outcome = Run({"pack", client, "-o", At("volume/p.kpk"), "--build", "8"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.errors.find("No space left"), std::string::npos) << outcome.errors;
    EXPECT_EQ(Read(At("volume/p.kpk")), "the old one");
    EXPECT_EQ(Names(At("volume")), std::set<std::string>{"p.kpk"});
}
