// The way from code that works deep below to whoever shows progress.
#pragma once

#include <QObject>
#include <QString>

// The process-wide object through which the extractor reports, without knowing who listens.
//
// It lives on the thread that first asked for it, the main thread, while its operations are called on the handler
// thread: they do nothing but emit, and connections of the automatic type queue the call for the listener's thread in
// the order of the emissions.
class Notify_Adapter : public QObject {  // NOLINT(readability-identifier-naming): the family's name.
    Q_OBJECT

public:
    // The one object, made on first use; it lives until the process ends and has no parent.
    static Notify_Adapter* GetInstance();

    // Emits sigUpdateProgress. `total` is at least 1, `current` runs from 1 to `total`. Any thread.
    void UpdateProgress(int total, int current);

    // Emits sigUpdateDialogText. Any thread.
    void UpdateDialogText(QString text);

Q_SIGNALS:
    // Once for each archive entry that was written, on the handler thread.
    void sigUpdateProgress(int total, int current);

    // Once for each extraction, before its first progress, on the handler thread.
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};
