// What the launcher asks of the system, counted: the same on every machine, however busy it is.
#include <QtGlobal>

#include "launcher-test.h"

namespace {

class CostTest : public LauncherTest {
protected:
    CostTest() {
        environment_.erase("TZ");  // which would spare the looks at the system's zone
    }

    // The system calls of an upgrade from and to a client that has so many small files beside the usual entries.
    long CallsOfAnUpgrade(int build, int files) {
        for (int next = build; next <= build + 1; ++next) {
            LayBundle(next);
            std::vector<PackageEntry> entries = ClientEntries(next);
            for (int at = 0; at < files; ++at) {
                entries.insert(entries.begin() + 1, {"Contents/file" + std::to_string(at), "a few bytes"});
            }
            WritePackage(Package(), entries);
            if (next == build) {
                ExpectLaunched(Launch(), build);
            }
        }
        ExpectLaunched(Launch(Traced({"-c", "-U", "name,calls"})), build + 1);
        return std::stol(RunProcess({"awk", "$1 == \"total\" { print $2 }", At("trace")}).output);
    }
};

TEST_F(CostTest, CallsForEachEntryOfAnUpgrade) {
    KQ_NEED(Ability::OwnCalls);
    constexpr int kMore = 400;
    const long few = CallsOfAnUpgrade(1000, 0);
    const double each = static_cast<double>(CallsOfAnUpgrade(2000, kMore) - few) / kMore;
    EXPECT_LE(each, QT_VERSION_MAJOR == 5 ? 14.0 : 19.0) << "Qt 6 wakes a thread with more calls";
    EXPECT_GE(each, 5.0) << "an entry can't be replaced with less";
}

TEST_F(CostTest, LooksAtTheHomeByAStartWithNothingToDo) {
    KQ_NEED(Ability::OwnCalls);
    InstallClient(1000);
    LayBundle(1000);
    ExpectLaunched(Launch(Traced({"-e", "trace=%file"})), 1000);
    const Outcome looked = RunProcess({"grep", "-c", "/.KelvaneQuay", At("trace")});
    const int looks = std::stoi(looked.output);
    EXPECT_LE(looks, 24);
    EXPECT_GE(looks, 3) << "INFO, the binary and its start";
}

}  // namespace
