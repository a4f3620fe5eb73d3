#include "notify-adapter.h"

Notify_Adapter* Notify_Adapter::GetInstance() {
    static Notify_Adapter instance;
    return &instance;
}

void Notify_Adapter::UpdateProgress(int total, int current) {
    Q_EMIT sigUpdateProgress(total, current);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the text is copied for the queue in any case.
void Notify_Adapter::UpdateDialogText(QString text) {
    Q_EMIT sigUpdateDialogText(text);
}
