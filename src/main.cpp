// The life of the process, step by step. The order matters.
#include <QApplication>
#include <QDir>
#include <QFont>
#include <QTranslator>
#include <clocale>
#include <memory>
#include <string>

#include "cloud-service.h"
#include "launcher.h"
#include "log/log-statement.h"
#include "path-table.h"
#include "pier/kelvane-locale.h"
#include "pier/single-application.h"
#include "platform/process-setup.h"
#include "resources/str-table.h"
#include "resources/texts.h"

namespace {

constexpr char kComponent[] = "launcher_debug";

// Generations of the log file that are kept.
constexpr int kLogRotateCount = 50;

// Logs some paths. "%s" gets them as wide texts, deliberately: a line shows a path's first character, or nothing for a
// key that is not set, and tells no more about a user's folders.
void LogPaths() {
    for (const PathKey key : {kUserTessalyPath, kUserTessalyAppPath, kUserTessalyResourcePath, kUserTessalyDataPath,
                              kUserTessalyWorkingDirPath, kUserTessalyQuayUiPath, kRootResourcePath}) {
        const std::wstring path = TablePath(key).toStdWString();
        KQ_LOG_INFO(kComponent, ">>> %s = %s\n", key.name, reinterpret_cast<const char*>(path.c_str()));
    }
}

// Sets the log up. Without a folder for it the run goes on: warnings and errors then go to standard error.
void StartLog() {
    const std::string levels = (TablePath(kRootResourcePath) + InResources(kLevelFile)).toStdString();
    const QString folder = TablePath(kUserKelvaneQuayPath) + "/" + kLogFolder;
    if (!QDir(QString()).mkpath(folder)) {
        return;
    }
    Logger::Initialize(Logger::TYPE_FILE, (folder + "/" + kLogName).toStdString(), levels, kLogRotateCount,
                       Logger::SCOPE_THREAD);
    LogPaths();
}

// Installs the catalog of the user's language, if there is one, and returns the language's code.
QString InstallTranslation() {
    auto translator = std::make_unique<QTranslator>();
    QString language = KelvaneLocale::getInstance()->getDefaultLanguage();
    // Whether it is empty tells as much as the result. Without delimiters no shorter name is tried.
    static_cast<void>(translator->load(QStringLiteral(":/") + language + ".qm", QString::fromLatin1(""),
                                       QString::fromLatin1(""), QString::fromLatin1("")));
    if (!translator->isEmpty()) {
        // Stays until the process ends.
        QCoreApplication::installTranslator(translator.release());
    }
    return language;
}

// Thai alone takes the longer name, on every platform.
void SetApplicationFont(const QString& language) {
    const QString family =
        language == QLatin1String("tha") ? QStringLiteral("Microsoft Sans Serif") : QStringLiteral("Arial");
    QApplication::setFont(QFont(family, 12, -1, false));
}

}  // namespace

int main(int argc, char** argv) {
    platform::UsePathsInUtf8();
    platform::DropQtWarnings();
    QtSingleApplication application(argc, argv, true);
    std::setlocale(LC_ALL, "");
    platform::EnsureUtf8CharacterSet();
    platform::IgnoreWriteSignals();
    platform::KeepTimeZone();
    qInitResources_texts();
    FillPathTable(Service::GetUserInstallPath(), QCoreApplication::applicationDirPath());
    StartLog();
    if (application.isRunning()) {
        KQ_LOG_DEBUG(kComponent, "app has already launched, return\n");
        return 0;
    }
    const QString language = InstallTranslation();
    StrTable::InitStrTable();  // before the dialog, which reads it
    SetApplicationFont(language);

    auto launcher = std::make_unique<Launcher>();
    launcher->Run();
    launcher->Start();
    return QApplication::exec();
}
