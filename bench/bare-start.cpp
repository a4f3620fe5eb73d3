// The least that a Qt program can do in the launcher's place: an application object, a detached process, the end; and,
// where it is asked for one, a progress dialog that is built and never shown.
//
//   bare-start [dialog]
#include <QApplication>
#include <QProcess>
#include <QProgressDialog>
#include <QTimer>
#include <memory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::unique_ptr<QProgressDialog> dialog;
    if (argc > 1) {
        QApplication::setFont(QFont(QStringLiteral("Arial"), 12));
        dialog = std::make_unique<QProgressDialog>();
        dialog->setLabelText(QStringLiteral("Kelvane Quay Client is initializing..."));
        dialog->setCancelButton(nullptr);
    }
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
