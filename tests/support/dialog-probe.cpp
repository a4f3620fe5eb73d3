// Tells a test what a person sees of the dialog, from inside the real launcher: a plugin that Qt itself loads when
// QT_QPA_GENERIC_PLUGINS names it. On each showing and hiding of a progress dialog it appends a line to the file that
// KQ_PROBE_FILE names: what happened, the title, the label, the value, the font's family and size, the dialog's size in
// pixels and how it may change, its flags and modality, its buttons, and the same title, label and value as a screen
// reader gets them, separated by "|". Each value that is shown in between has a line of its own. With KQ_PROBE_CLOSE
// the dialog is closed as soon as it is there.
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>

namespace {

// Title, label and value.
QStringList AsScreenReader(QWidget* dialog) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(dialog);
    QStringList heard = {window->text(QAccessible::Name), QString(), QString()};
    for (int at = 0; at < window->childCount(); ++at) {
        QAccessibleInterface* part = window->child(at);
        if (part->role() == QAccessible::StaticText) {
            heard[1] = part->text(QAccessible::Name);
        } else if (part->role() == QAccessible::ProgressBar) {
            heard[2] = part->valueInterface()->currentValue().toString();
        }
    }
    return heard;
}

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
        const auto rest = static_cast<int>(dialog->windowFlags() & ~Qt::WindowType_Mask);
        const auto number = [](int value) { return QString::number(value); };
        Write(QStringList{isShown ? QStringLiteral("show") : QStringLiteral("hide"), dialog->windowTitle(),
                          dialog->labelText(), number(dialog->value()), dialog->font().family(),
                          number(dialog->font().pointSize()) + number(dialog->font().italic()),
                          number(pixels.width()) + QLatin1Char('x') + number(pixels.height()),
                          number(room.width() + room.height()), QString::number(rest, 16), number(dialog->isModal()),
                          number(dialog->findChildren<QPushButton*>().size())} +
              AsScreenReader(dialog));
        auto* bar = dialog->findChild<QProgressBar*>();
        disconnect(bar, nullptr, this, nullptr);
        if (isShown) {
            connect(bar, &QProgressBar::valueChanged, this, [](int value) { Write({QString::number(value)}); });
            if (qEnvironmentVariableIsSet("KQ_PROBE_KEYS")) {
                QCoreApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
                QMetaObject::invokeMethod(dialog, "close", Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    static void Write(const QStringList& line) {
        QFile file(qEnvironmentVariable("KQ_PROBE_FILE"));
        if (file.open(QIODevice::Append)) {
            file.write(line.join(QLatin1Char('|')).toUtf8() + '\n');
        }
    }
};

}  // namespace

class DialogProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "dialog-probe.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*arguments*/) override { return new DialogProbe; }
};

#include "dialog-probe.moc"
