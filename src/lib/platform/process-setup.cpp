#include "platform/process-setup.h"

#include <langinfo.h>
#include <strings.h>

#include <QString>
#include <QtGlobal>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <initializer_list>

#if QT_VERSION_MAJOR < 6
#include <QTextCodec>
#endif

namespace platform {
namespace {

void TellErrors(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    }
}

}  // namespace

void UsePathsInUtf8() {
#if QT_VERSION_MAJOR < 6
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

void DropQtWarnings() {
    qInstallMessageHandler(TellErrors);
}

void EnsureUtf8CharacterSet() {
    if (strcasecmp(nl_langinfo(CODESET), "UTF-8") == 0) {
        return;
    }
    // The first is in every glibc since 2.35 and in Debian's before; the second is macOS's own name.
    for (const char* name : {"C.UTF-8", "UTF-8", "en_US.UTF-8"}) {
        if (std::setlocale(LC_CTYPE, name) != nullptr) {
            return;
        }
    }
}

void IgnoreWriteSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace platform
