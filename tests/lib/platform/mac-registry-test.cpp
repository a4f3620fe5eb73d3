#include <gtest/gtest.h>

#include <QProcess>

#include "platform/application-registry.h"

namespace {

const QString kFolder = QStringLiteral("/Users/An na/.KelvaneQuay/KelvaneQuay.app");

TEST(MacRegistryTest, RunsTheSystemsOwnPrograms) {
    QProcess::calls.clear();
    EXPECT_EQ(platform::ForgetApplication(kFolder), 0);
    EXPECT_TRUE(platform::StartApplication(kFolder, kFolder + QStringLiteral("/Contents/MacOS/cloud-quay-ui")));
    // A path with blanks is one argument, and the binary's own path is not given.
    const QList<QStringList> expected = {
        {QStringLiteral("execute"),
         QStringLiteral("/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/"
                        "Support/lsregister"),
         QStringLiteral("-u"), kFolder},
        {QStringLiteral("start"), QStringLiteral("/usr/bin/open"), QStringLiteral("-n"), QStringLiteral("-a"), kFolder},
    };
    EXPECT_EQ(QProcess::calls, expected);
}

TEST(MacRegistryTest, PassesTheirResultsOn) {
    for (const int status : {0, 1, -1, -2}) {
        QProcess::executeResult = status;
        EXPECT_EQ(platform::ForgetApplication(kFolder), status);
    }
    QProcess::startResult = false;
    EXPECT_FALSE(platform::StartApplication(kFolder, kFolder));
}

}  // namespace
