// Tells a test what a person sees of the dialog, from inside the real launcher: a plugin that Qt itself loads. Writes
// to the file that KQ_PROBE_FILE names a line when a progress dialog is shown or hidden, and one for each value.
// With KQ_PROBE_KEYS Esc is pressed and the dialog closed as soon as it is there.
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTextStream>

class DialogProbe : public QObject {
public:
    DialogProbe() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = qobject_cast<QProgressDialog*>(watched);
        if (dialog == nullptr || (event->type() != QEvent::Show && event->type() != QEvent::Hide)) {
            return false;
        }
        const bool isShown = event->type() == QEvent::Show;
        const QSize pixels = dialog->size() * dialog->devicePixelRatioF();
        const QSize room = dialog->maximumSize() - dialog->minimumSize();
        QString line;
        QTextStream(&line) << (isShown ? "show|" : "hide|") << dialog->windowTitle() << '|' << dialog->labelText()
                           << '|' << dialog->value() << '|' << dialog->font().family() << '|'
                           << dialog->font().pointSize() << dialog->font().italic() << '|' << pixels.width() << 'x'
                           << pixels.height() << '|' << room.width() + room.height() << '|'
                           << static_cast<int>(dialog->windowFlags() & ~Qt::WindowType_Mask) << '|' << dialog->isModal()
                           << '|' << dialog->findChildren<QPushButton*>().size() << '|'
                           << dialog->windowIcon().actualSize(pixels).width();
        Write(line);
        auto* bar = dialog->findChild<QProgressBar*>();
        disconnect(bar, nullptr, this, nullptr);
        if (isShown) {
            connect(bar, &QProgressBar::valueChanged, this, [](int value) { Write(QString::number(value)); });
            if (qEnvironmentVariableIsSet("KQ_PROBE_KEYS")) {
                QCoreApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
                QMetaObject::invokeMethod(dialog, "close", Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    static void Write(const QString& line) {
        QFile file(qEnvironmentVariable("KQ_PROBE_FILE"));
        if (file.open(QIODevice::Append)) {
            file.write(line.toUtf8() + '\n');
        }
    }
};

class DialogProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "dialog-probe.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*arguments*/) override { return new DialogProbe; }
};

#include "dialog-probe.moc"
