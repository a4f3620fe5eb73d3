// The macOS bodies on fakes that record their calls and answer as told.
#include <CoreServices/CoreServices.h>
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QProcess>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/application-registry.h"
#include "platform/file-reference.h"
#include "platform/volume-type.h"

namespace {

std::string calls;
OSStatus referenceStatus = 0;
OSStatus pathStatus = 0;
const char* volumeType = nullptr;  // null: statfs fails with EIO

OSStatus MakeReference(const std::string& call, const UInt8* path, FSRef* ref, const Boolean* isDirectory) {
    calls += call + " " + reinterpret_cast<const char*>(path) + (isDirectory == nullptr ? ";" : " asked;");
    std::fill_n(ref->hidden, sizeof(ref->hidden), UInt8{0xA5});
    return referenceStatus;
}

}  // namespace

extern "C" {

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory) {
    return MakeReference("follow", path, ref, isDirectory);
}

OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref, Boolean* isDirectory) {
    return MakeReference("options " + std::to_string(options), path, ref, isDirectory);
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize) {
    const bool isMade = std::count(ref->hidden, ref->hidden + sizeof(ref->hidden), 0xA5) == sizeof(ref->hidden);
    const bool isZeroed = std::count(path, path + pathBufferSize, 0) == pathBufferSize;
    calls += "path " + std::to_string(pathBufferSize) + (isMade && isZeroed ? ";" : " badly called;");
    std::memcpy(path, "/X/File", 7);  // without a terminator, as the buffer is to have zeros
    return pathStatus;
}

// The body of statfs: see the stand-in header.
int kq_stand_in_statfs(const char* path, struct statfs* status) {
    calls += std::string("statfs ") + path + ";";
    errno = EIO;
    return volumeType == nullptr ? -1 : (std::strcpy(status->f_fstypename, volumeType), 0);
}

}  // extern "C"

namespace {

TEST(MacTest, FileReferences) {
    for (const auto& [leaf, call] :
         {std::pair(platform::Leaf::Keep, "options 1 /x/file;"), {platform::Leaf::Follow, "follow /x/file;"}}) {
        for (const auto& [forReference, forPath] : {std::pair(0, 0), {-43, 0}, {0, -2110}, {0, 1}}) {
            referenceStatus = forReference;
            pathStatus = forPath;
            calls.clear();
            std::string path = "old";
            EXPECT_EQ(forReference + forPath, platform::SpelledPath("/x/file", leaf, path));
            EXPECT_EQ(forReference + forPath == 0 ? "/X/File" : "old", path);
            EXPECT_EQ(std::string(call) + (forReference == 0 ? "path 4096;" : ""), calls);
        }
    }
}

TEST(MacTest, VolumeTypes) {
    calls.clear();
    EXPECT_EQ(platform::VolumeTypeName("/x"), std::nullopt);
    volumeType = "fifteen letters";
    EXPECT_EQ(platform::VolumeTypeName("/y"), volumeType);
    EXPECT_EQ(calls, "statfs /x;statfs /y;");
}

TEST(MacTest, TheSystemsOwnProgramsAreRun) {
    // A path with blanks is one argument, and the binary's own path is not given.
    const QString app = QStringLiteral("/Users/An na/K.app");
    for (const int status : {0, 1, -2}) {
        QProcess::result = status;
        QProcess::calls.clear();
        EXPECT_EQ(platform::ForgetApplication(app), status);
        EXPECT_EQ(platform::StartApplication(app, app + QStringLiteral("/Contents/MacOS/x")), status == 0);
    }
    EXPECT_EQ(QProcess::calls.join(QLatin1Char('|')).toStdString(),
              "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
              "lsregister|-u|/Users/An na/K.app|/usr/bin/open|-n|-a|/Users/An na/K.app");
}

}  // namespace
