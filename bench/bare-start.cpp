// The least that a Qt program can do in the launcher's place: an application object, a detached process, the end.
#include <QApplication>
#include <QProcess>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTimer::singleShot(0, &application, [] {
        QProcess client;
        client.setProgram(QStringLiteral("/bin/true"));
        client.setStandardInputFile(QProcess::nullDevice());
        client.setStandardOutputFile(QProcess::nullDevice());
        client.setStandardErrorFile(QProcess::nullDevice());
        client.startDetached();
        QCoreApplication::quit();
    });
    return QApplication::exec();
}
