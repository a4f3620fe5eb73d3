#include <sys/stat.h>

#include <QJsonArray>

#include "quay-test.h"

class PackTest : public ClientTest {};

// Wherever the client lies, in whatever order it was laid, under another umask, locale and time zone.
TEST_F(PackTest, GivesTheSameBytesAnywhere) {
    Succeed("pack @client -o @one --build 7");
    EXPECT_EQ(fs::status(At("one")).permissions(), fs::perms(0644));
    environment_["LC_ALL"] = "C";
    environment_["TZ"] = "Asia/Tokyo";
    const mode_t before = umask(077);
    std::mt19937 source(3);
    std::vector<PackageEntry> entries = ClientEntries(7);
    for (int round = 0; round < 5; ++round) {
        std::shuffle(entries.begin(), entries.end(), source);
        for (PackageEntry& entry : entries) {
            entry.mode &= entry.type == S_IFREG ? 0700 : 0777;
        }
        fs::remove_all(At("else"));
        fs::create_directories(At("else/where"));
        WritePackage(At("client.tar"), entries, "gnutar");
        EXPECT_EQ(RunProcess({"tar", "-xpf", At("client.tar"), "-C", At("else/where")}).exitCode, 0);
        Succeed("pack @else/where/ -o @two --build 7");
        EXPECT_TRUE(Read(At("one")) == Read(At("two")));
    }
    umask(before);
    environment_["SOURCE_DATE_EPOCH"] = "1600000000";
    Succeed("pack @client -o @two --build 7");
    EXPECT_FALSE(Read(At("one")) == Read(At("two")));
    Succeed("check @two");
}

// The launcher reads the build that was asked for, and what else INFO holds is kept; else it is refused.
TEST_F(PackTest, StampsInfoSoThatTheLauncherReadsIt) {
    const std::string stamp = "minor_version=5\nbuild_version=99\nicon_overlay_version=0\n";
    const std::string whole = "[Version]\nmajor_version=0\n" + stamp;
    const std::pair<const char*, std::string> infos[] = {
        {"[General]\r\nchannel=beta\r\n[Version]\nmajor_version=4\nbuild_version=1\ncode_name=heron\n",
         "[Version]\nmajor_version=4\n" + stamp + "code_name=heron\n[General]\nchannel=beta\n"},
        {"top=1\n\xef\xbb\xbf", "top=1\n\xef\xbb\xbf\n" + whole},
        {" [Version]\n build_version = 1\n[Version]\nbuild_version=2\n; build_version=3\n",
         whole + "; build_version=3\n"},
        {"Version\\build_version=1\n", "Version\\build_version=1\n" + whole},
        {"[Version]\nbuild%5Fversion=1\n", ""},
        {"[Version];x\nbuild_version=1\n", ""},
    };
    for (const auto& [present, stamped] : infos) {
        Write(At("client/Contents/Resources/INFO"), present);
        const QJsonObject packed = RunJson("pack @client -o @p.kpk --build 99 --minor 5");
        EXPECT_EQ(CodesOf(packed), stamped.empty() ? Codes{"KQ513"} : Codes()) << present;
        if (!stamped.empty()) {
            EXPECT_EQ(Value(packed.value(QStringLiteral("versions")).toObject(), "minor"), "5");
            Succeed("bundle --launcher LAUNCHER --package @p.kpk -o @bundle");
            EXPECT_EQ(Read(At("bundle/Contents/Resources/INFO")), stamped);
        }
    }
}

TEST_F(PackTest, RefusesWhatCantBeMended) {
    const std::string c = At("client/Contents/");
    const Cases inputs = {
        {{"KQ302"}, [&] { MakeFifo(c + "fifo"); }},
        {{"KQ504"}, [&] { MakeFifo(c + "Resources/INFO"); }},
        {{"KQ512"}, [&] { Write(c + "Resources/INFO", std::string(70000, '\n')); }},
    };
    for (const auto& [codes, spoil] : inputs) {
        MakeClient();
        spoil();
        EXPECT_EQ(Find("pack @client -o @out.kpk --build 7"), codes);
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
    const QJsonObject packed = RunJson("pack @client -o @p.kpk --build 7");
    EXPECT_EQ(CodesOf(packed, "mended"), (Codes{"KQ211", "KQ212", "KQ301", "KQ303"}));
    EXPECT_EQ(packed.value(QStringLiteral("mended")).toArray().size(), 35);
    Succeed("check @p.kpk");
    const std::string entry = "link     0777            0  Contents/Resources/current -> only-in-7\n";
    EXPECT_NE(Run("list @p.kpk").output.find(entry), std::string::npos);
    EXPECT_EQ(Value(packed, "entries"), "11");
    EXPECT_EQ(Value(RunJson("list @p.kpk"), "bytes"), Value(packed, "bytes"));
    EXPECT_EQ(Value(RunJson("pack @client -o @p.kpk --build 7 --keep-all"), "entries"), "73");
    const std::string text = Run("check @p.kpk").output;
    EXPECT_NE(text.find("KQ211  Contents/Resources/._large: an AppleDouble leftover\n"), std::string::npos);
    EXPECT_NE(text.find("\n       and 36 more of them\n"), std::string::npos);
    const QJsonObject checked = RunJson("check @p.kpk --accept KQ211=Contents/Resources/._large --accept KQ212");
    EXPECT_EQ(CodesOf(checked), Codes());
    EXPECT_EQ(CodesOf(checked, "accepted"), (Codes{"KQ211", "KQ212"}));
    EXPECT_EQ(Value(checked, "rehearsal"), "done");
}

TEST_F(PackTest, WrongUsageIsTwo) {
    MakeFifo(At("fifo"));
    for (const char* usage :
         {"", "unpack", "pack @client -o @p", "pack @client -o @p --build 7x",
          "pack @client -o @p --build 7 --format zip", "pack @client -o @p --build 7 --home /",
          "pack @client -o @p --build 7 --major \"1\n[Version]\"", "pack @client -o @p --build 7 --max-unpacked some",
          "pack @client -o @p --build 7 --accept KQ503", "pack @client -o @client/Contents/p --build 7",
          "pack @client -o @no/such/folder/p --build 7", "pack @client -o @fifo --build 7",
          "pack @client @client -o @p --build 7", "pack @nothing -o @p --build 7",
          "bundle --launcher LAUNCHER --package @nothing -o @b", "check @nothing", "list @fifo", "explain @nothing",
          "verify @nothing"}) {
        EXPECT_EQ(Find(usage), Codes{"error"}) << usage;
    }
    EXPECT_FALSE(fs::exists(At("p")));
    for (const std::string command : {"pack", "bundle", "check", "list", "explain", "verify"}) {
        EXPECT_NE(Run(command + " --help").output.find(command), std::string::npos);
        // An object has the same keys whatever the outcome.
        EXPECT_EQ(RunJson(command + " @nothing --frobnicate").keys(), RunJson(command).keys());
    }
    EXPECT_EQ(Run("--version").output.substr(0, 13), "quay-package ");
    EXPECT_NE(Run("check --codes").output.find("\n| KQ904 |"), std::string::npos);
}

// Whatever goes on changing in the folder while it is packed.
TEST_F(PackTest, AChangingFolderIsNotPacked) {
    Write(At("client/Contents/a"), "");
    fs::resize_file(At("client/Contents/a"), 60 << 20);
    Write(At("out/p.kpk"), "the old one");
    for (const std::string change : {"echo $((n++ % 10)) > z", "> z$((n++))", "ln -sfn a l; ln -sfn ./a l"}) {
        const Process changing(
            {"/bin/bash", "-c", "cd \"$0\"; while :; do " + change + "; done", At("client/Contents")});
        EXPECT_EQ(Find("pack @client -o @out/p.kpk --build 8"), Codes{"error"}) << change;
        EXPECT_EQ(Read(At("out/p.kpk")), "the old one");
    }
}

// A call that fails, or at which the run is ended, leaves the old output or the new one, and nothing else that is seen;
// an end that can't be taken notice of may leave a hidden file.
TEST_F(PackTest, AFaultLeavesTheOldOutputOrTheNew) {
    KQ_NEED(Ability::Tracing);
    KQ_NEED(Ability::OwnCalls);
    const std::string bundle = "bundle --launcher LAUNCHER --package @client.kpk -o @out/made";
    for (const std::string command : {"pack @client -o @out/made --build 8", bundle.c_str()}) {
        fs::remove_all(At("out"));
        fs::create_directory(At("out"));
        Succeed(command);
        const Tree made = ReadTree(At("out"));
        for (const std::string call : {"write", "fsync", "fchmod", "rename", "renameat2", "linkat"}) {
            bool wasHit = true;
            for (int at = 1; wasHit && at < 1000; at += at / 2 + 1) {
                const Lines faults = {"error=ENOSPC", "signal=KILL", "signal=TERM"};
                const std::string& fault = faults[static_cast<std::size_t>(at) % 3];
                SCOPED_TRACE(command + ", " + call + " " + std::to_string(at) + ": " + fault);
                fs::remove_all(At("out"));
                Write(At(command == bundle ? "out/made/Contents/MacOS/kelvane-quay-launcher" : "out/made"), "old");
                const Tree old = ReadTree(At("out"));
                const Lines injection = {"-e", "inject=" + call + ":" + fault + ":when=" + std::to_string(at)};
                const Outcome outcome = RunProcess(Traced(Words(command, injection)), environment_);
                wasHit = outcome.exitCode != 0 || Read(At("trace")).find("INJECTED") != std::string::npos;
                EXPECT_LE(outcome.exitCode, 2);
                Tree left = ReadTree(At("out"));
                for (auto entry = left.begin(); outcome.signal == SIGKILL && entry != left.end();) {
                    entry = entry->first[0] == '.' ? left.erase(entry) : std::next(entry);
                }
                EXPECT_TRUE(left == made || (left == old && outcome.exitCode != 0)) << outcome.errors;
            }
        }
    }
}
