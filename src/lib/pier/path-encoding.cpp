#include "path-encoding.h"

#include <QtGlobal>

#if QT_VERSION_MAJOR < 6
#include <QTextCodec>

void UsePathsInUtf8() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}
#else
void UsePathsInUtf8() {
}
#endif
