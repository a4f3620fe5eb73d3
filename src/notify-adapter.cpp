#include "notify-adapter.h"

#include <utility>

Notify_Adapter* Notify_Adapter::GetInstance() {
    static Notify_Adapter instance;
    return &instance;
}

void Notify_Adapter::UpdateProgress(int total, int current) {
    Q_EMIT sigUpdateProgress(total, current);
}

// By value, as the text waits in the listener's queue.
void Notify_Adapter::UpdateDialogText(QString text) {
    Q_EMIT sigUpdateDialogText(std::move(text));
}
