#include <sys/stat.h>
#include <unistd.h>

#include <QJsonArray>
#include <algorithm>
#include <csignal>
#include <random>

#include "await-write.h"
#include "quay-test.h"
#include "volume.h"

class PackTest : public QuayTest {
protected:
    void SetUp() override { MakeClient(); }

    // Packs over an old output in a folder: begins, and returns once something is written there.
    std::unique_ptr<Process> PackOver(const std::string& out) const {
        Write(At(out + "/p.kpk"), "the old one");
        std::unique_ptr<Process> process;
        AwaitWrite(At(out), [&] {
            process = std::make_unique<Process>(Words("pack @client --build 8 -o @" + out + "/p.kpk"), environment_);
        });
        return process;
    }

    void ExpectTheOldOutput(const std::string& out, bool alone = true) const {
        EXPECT_EQ(Read(At(out + "/p.kpk")), "the old one");
        EXPECT_TRUE(!alone || Names(At(out)).size() == 1);
    }
};

// The same client, laid in another folder in another order, at another time, with other modes, packed under another
// umask, locale and time zone: the same bytes.
TEST_F(PackTest, GivesTheSameBytesAnywhere) {
    Succeed("pack @client -o @one --build 7");
    EXPECT_EQ(fs::status(At("one")).permissions(), fs::perms(0644));
    std::vector<fs::path> paths;
    for (const auto& [path, description] : ReadTree(At("client"))) {
        paths.emplace_back(path);
    }
    environment_["LC_ALL"] = "C";
    environment_["TZ"] = "Asia/Tokyo";
    const mode_t before = umask(077);
    std::mt19937 source(3);
    for (int round = 0; round < 5; ++round) {
        fs::remove_all(At("else"));
        std::shuffle(paths.begin(), paths.end(), source);
        for (const fs::path& path : paths) {
            const fs::path from = At("client") / path;
            const fs::path to = At("else/where") / path;
            fs::create_directories(fs::is_directory(fs::symlink_status(from)) ? to : to.parent_path());
            fs::copy(from, to, fs::copy_options::copy_symlinks);
            if (fs::is_regular_file(fs::symlink_status(to))) {
                fs::permissions(to, fs::perms(path.filename() == "cloud-quay-ui" ? 0700 : 0600));
                fs::last_write_time(to, fs::file_time_type::clock::now() - std::chrono::hours(50000));
            }
        }
        Succeed("pack @else/where/ -o @two --build 7");
        EXPECT_TRUE(Read(At("one")) == Read(At("two")));
    }
    umask(before);
    environment_["SOURCE_DATE_EPOCH"] = "1600000000";
    Succeed("pack @client -o @two --build 7");
    EXPECT_FALSE(Read(At("one")) == Read(At("two")));
    EXPECT_EQ(Check("@two"), Codes());
}

// The launcher reads the build that was asked for, and what else INFO holds is kept; else it is refused.
TEST_F(PackTest, StampsInfoSoThatTheLauncherReadsIt) {
    const std::string stamp = "minor_version=5\nbuild_version=99\nicon_overlay_version=0\n";
    const std::string whole = "[Version]\nmajor_version=0\n" + stamp;
    const std::string refused;
    const std::pair<const char*, std::string> infos[] = {
        {"[General]\r\nchannel=beta\r\n[Version]\nmajor_version=4\nbuild_version=1\ncode_name=heron\n",
         "[Version]\nmajor_version=4\n" + stamp + "code_name=heron\n[General]\nchannel=beta\n"},
        {"", whole},
        {"top=1\n\xef\xbb\xbf", "top=1\n\xef\xbb\xbf\n" + whole},
        {"\xef\xbb\xbf[Version]\nbuild_version=1\n", whole},
        {" [Version]\n build_version = 1\n[Version]\nbuild_version=2\n; build_version=3\n",
         whole + "; build_version=3\n"},
        {"[Version]\nbuild%5Fversion=1\n", refused},
        {"[%56ersion]\nbuild_version=1\n", refused},
        {"[ Version ]\nbuild_version=1\n", refused},
        {"[Version];x\nbuild_version=1\n", refused},
        {"Version\\build_version=1\n", "Version\\build_version=1\n" + whole},
    };
    for (const auto& [present, stamped] : infos) {
        Write(At("client/Contents/Resources/INFO"), present);
        const QJsonObject packed = RunJson("pack @client -o @p.kpk --build 99 --minor 5", stamped == refused ? 1 : 0);
        EXPECT_EQ(CodesOf(packed), stamped == refused ? Codes{"KQ513"} : Codes()) << present;
        if (stamped != refused) {
            EXPECT_EQ(Value(packed.value(QStringLiteral("versions")).toObject(), "minor"), "5");
            Succeed("bundle --launcher LAUNCHER --package @p.kpk -o @bundle");
            EXPECT_EQ(Read(At("bundle/Contents/Resources/INFO")), stamped);
        }
    }
}

// Inputs that are refused, each with its code, and with nothing written.
TEST_F(PackTest, RefusesWhatCantBeMended) {
    const std::string c = At("client/Contents");
    const std::string info = c + "/Resources/INFO";
    const Cases inputs = {
        {{"KQ402"}, [&] { fs::create_symlink("../../client", c + "/l"); }},
        {{"KQ302"}, [&] { mkfifo((c + "/fifo").c_str(), 0600); }},
        {{"KQ206"}, [&] { Write(c + "/Resources/info", ""); }},
        {{"KQ210"}, [&] { Write(c + "/../README", ""); }},
        {{"KQ214"}, [&] { fs::remove_all(c + "/Resources"), Write(c + "/Resources", ""); }},
        {{"KQ403"}, [&] { fs::rename(c + "/Resources", c + "/R"), fs::create_symlink("R", c + "/Resources"); }},
        {{"KQ504"}, [&] { fs::remove(info), fs::create_directory(info); }},
        {{"KQ504"}, [&] { fs::remove(info), fs::create_symlink("large", info); }},
        {{"KQ504"}, [&] { fs::remove(info), mkfifo(info.c_str(), 0600); }},
        {{"KQ512"}, [&] { Write(info, std::string(70000, '\n')); }},
    };
    for (const auto& [codes, spoil] : inputs) {
        MakeClient();
        spoil();
        EXPECT_EQ(CodesOf(RunJson("pack @client -o @out.kpk --build 7", 1)), codes);
        EXPECT_FALSE(fs::exists(At("out.kpk")));
    }
}

// Inputs that are mended or left out: said so, and the package is good. With --keep-all nothing is left out.
TEST_F(PackTest, MendsWhatItCan) {
    const std::string contents = At("client/Contents/");
    fs::create_hard_link(contents + "Resources/large", contents + "Resources/twin");
    fs::permissions(contents + "MacOS/cloud-quay-ui", fs::perms(06777));
    Write(contents + "Resources/._large", "attributes");
    for (int number = 0; number < 30; ++number) {
        Write(contents + ".git/" + std::to_string(number) + ".orig", "");
        Write(contents + "Resources/" + std::to_string(number) + "~", "");
    }
    const QJsonObject packed = RunJson("pack @client -o @p.kpk --build 7", 0);
    std::map<std::string, int> counts;
    for (const QJsonValue& mended : packed.value(QStringLiteral("mended")).toArray()) {
        ++counts[Value(mended.toObject(), "code")];
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{{"KQ211", 1}, {"KQ212", 31}, {"KQ301", 2}, {"KQ303", 1}}));
    EXPECT_EQ(Check("@p.kpk"), Codes());
    EXPECT_EQ(Value(packed, "entries"), "11");
    EXPECT_EQ(Value(RunJson("pack @client -o @p.kpk --build 7 --keep-all", 0), "entries"), "73");
    EXPECT_EQ(Check("@p.kpk"), (Codes{"KQ211", "KQ212"}));
    EXPECT_EQ(Check("@p.kpk --accept KQ211 --accept KQ212"), Codes());
}

TEST_F(PackTest, WrongUsageIsTwo) {
    ASSERT_EQ(mkfifo(At("fifo").c_str(), 0600), 0);
    for (const char* usage : {
             "",
             "unpack",
             "pack @client -o @p",
             "pack @client -o @p --build 7x",
             "pack @client -o @p --build 7 --format zip",
             "pack @client -o @p --build 7 --home /",
             "pack @client -o @p --build 7 --major \"1\n[Version]\"",
             "pack @client -o @client/Contents/p --build 7",
             "pack @client -o @no/such/folder/p --build 7",
             "pack @client -o @ --build 7",
             "pack @client -o @fifo --build 7",
             "pack @client @client -o @p --build 7",
             "pack @nothing -o @p --build 7",
             "bundle --launcher LAUNCHER --package @nothing -o @b",
             "check @nothing",
             "check @fifo",
             "check @client --frobnicate",
             "list @nothing",
             "list @fifo",
             "explain @nothing",
             "verify @nothing",
         }) {
        const Outcome outcome = Run(usage);
        EXPECT_EQ(outcome.exitCode, 2) << usage;
        EXPECT_NE(outcome.errors, "") << usage;
        RunJson(usage, 2);
    }
    EXPECT_FALSE(fs::exists(At("p")));
    for (const std::string command : {"pack", "bundle", "check", "list", "explain", "verify"}) {
        EXPECT_NE(Run(command + " --help").output.find(command), std::string::npos);
        // An object has the same keys whatever the outcome.
        EXPECT_EQ(RunJson(command + " @nothing --frobnicate", 2).keys(), RunJson(command, 2).keys());
    }
    EXPECT_EQ(Run("--version").output.substr(0, 13), "quay-package ");
}

// A run that is ended while it writes, or whose folder changes meanwhile, leaves what stood there before.
TEST_F(PackTest, AnEndedRunLeavesTheOldOutput) {
    // Takes long to read and no room to hold.
    Write(At("client/Contents/Resources/sparse"), "");
    fs::resize_file(At("client/Contents/Resources/sparse"), std::uintmax_t{3} << 30);
    for (const int number : {SIGTERM, SIGINT, SIGKILL}) {
        const std::string out = "out-" + std::to_string(number);
        const auto process = PackOver(out);
        process->Signal(number);
        EXPECT_EQ(process->Wait().signal, number);
        ExpectTheOldOutput(out, number != SIGKILL);
    }
}

TEST_F(PackTest, AChangedFolderIsNotPacked) {
    const std::string contents = At("client/Contents/");
    const std::function<void()> changes[] = {
        [&] { Write(contents + "Resources/only-in-7", "8"); },
        [&] { Write(contents + "Resources/zz", "new"); },
        [&] { fs::remove(contents + "z"), fs::create_symlink("x", contents + "z"); },
    };
    for (const auto& change : changes) {
        MakeClient();
        Write(contents + "a", "");
        fs::resize_file(contents + "a", 60 << 20);
        Write(contents + "z", "z");
        const auto process = PackOver("out");
        change();
        const Outcome outcome = process->Wait();
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_NE(outcome.errors, "");
        ExpectTheOldOutput("out");
    }
}

TEST_F(PackTest, AFullDiskLeavesTheOldOutput) {
    std::mt19937 source(1);
    std::string noise(200 << 10, '\0');
    std::generate(noise.begin(), noise.end(), [&source] { return static_cast<char>(source()); });
    Write(At("client/Contents/Resources/noise"), noise);
    Volume volume(Volume::Tmpfs, At("volume"), 64 << 10);
    KQ_NEED(volume);
    const Outcome outcome = PackOver("volume")->Wait();
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.errors.find("No space left"), std::string::npos) << outcome.errors;
    ExpectTheOldOutput("volume");
}
