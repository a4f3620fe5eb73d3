// Tells a test what a person sees of the dialog, from inside the real launcher: a plugin that Qt itself loads when
// QT_QPA_GENERIC_PLUGINS names it. On each showing and hiding of a progress dialog it appends a line to the file that
// KQ_PROBE_FILE names: what happened, the title, the label, the value, the font's family and size, and the same title,
// label and value as a screen reader gets them, separated by "|". Where KQ_PROBE_KEYS is set, it presses Esc as soon as
// the dialog is there, and closes it once more.
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QProgressDialog>

namespace {

QStringList AsScreenReader(QWidget* dialog) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(dialog);
    QString label;
    QString value;
    for (int at = 0; at < window->childCount(); ++at) {
        QAccessibleInterface* part = window->child(at);
        if (part->role() == QAccessible::StaticText) {
            label = part->text(QAccessible::Name);
        } else if (part->role() == QAccessible::ProgressBar && part->valueInterface() != nullptr) {
            value = part->valueInterface()->currentValue().toString();
        }
    }
    return {window->text(QAccessible::Name), label, value};
}

class DialogProbe : public QObject {
public:
    DialogProbe() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = qobject_cast<QProgressDialog*>(watched);
        if (dialog != nullptr && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
            QStringList line = {event->type() == QEvent::Show ? QStringLiteral("show") : QStringLiteral("hide"),
                                dialog->windowTitle(),
                                dialog->labelText(),
                                QString::number(dialog->value()),
                                dialog->font().family(),
                                QString::number(dialog->font().pointSize())};
            line += AsScreenReader(dialog);
            QFile file(qEnvironmentVariable("KQ_PROBE_FILE"));
            if (file.open(QIODevice::Append)) {
                file.write(line.join(QLatin1Char('|')).toUtf8() + '\n');
            }
            if (event->type() == QEvent::Show && qEnvironmentVariableIsSet("KQ_PROBE_KEYS")) {
                QCoreApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
                QMetaObject::invokeMethod(dialog, "close", Qt::QueuedConnection);
            }
        }
        return false;
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
