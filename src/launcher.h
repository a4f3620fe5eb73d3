// The two halves of a run: what the user sees, on the main thread, and the work, on the handler thread.
#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>

class Service;

// The program's only window: a small progress dialog that can't be cancelled. Built hidden. Main thread only.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    // Needs the filled path table and string table, and the application's font.
    ProcessingProgressDialog();
    ~ProcessingProgressDialog() override;
};

// A thread that does nothing but serve its event queue.
class HandlerThread : public QThread {
    Q_OBJECT

public:
    using QThread::QThread;

protected:
    void run() override;
};

// Does the work. The object lives on the handler thread from the end of its constructor on; it is made and deleted on
// the main thread, deleted only after the handler thread has ended. Owns the thread and the service.
class Worker : public QObject {
    Q_OBJECT

public:
    // Needs the filled path table. The thread is not started yet.
    Worker();
    ~Worker() override;

    // Main thread. JoinThread waits without a limit.
    void StartThread();
    void QuitThread();
    void JoinThread();

    // Whether the handler thread runs: it does not where the system gave none. Main thread.
    bool IsThreadRunning() const;

Q_SIGNALS:
    // All are emitted on the handler thread by HandleServicce; connections queue them for the main thread in order.
    void sigServiceDone();                        // last, once a run
    void sigShowMsg();                            // at most once, before an upgrade
    void sigUpdateProgress(int total, int step);  // once, after an upgrade that succeeded
    void sigSetLabelText(const QString& text);    // likewise

public Q_SLOTS:
    // The body of the whole run, once a process. Handler thread.
    void HandleServicce();

private:
    // The upgrade with what the user sees of it.
    void Upgrade();

    HandlerThread* thread;
    Service* service;
};

// What the user sees. Main thread only. Owns the worker and the dialog.
class Launcher : public QObject {
    Q_OBJECT

public:
    Launcher();
    ~Launcher() override;

    // Starts the handler thread. Where the system gives none, the work that Start asks for is done on the main thread,
    // from within its event loop.
    void Run();

    // Emits sigStart, which waits for the handler thread until Run has started it. May be called before the event loop
    // runs: what the worker answers waits in the queue.
    void Start();

Q_SIGNALS:
    void sigStart();  // once a process, by Start

public Q_SLOTS:
    // The end of the run: joins the handler thread and ends the event loop.
    void LaunchDone();

    // Sets the dialog to steps of total, in whole percent, truncated; 100 times `steps` wraps in 32 bits. `total` is
    // not 0.
    void UpdateProgress(int total, int steps);

    void SetLabelText(const QString& text);

    // Shows the progress dialog; there is no message box.
    void ShowMsgBox();

private:
    Worker* worker;
    ProcessingProgressDialog* progressDialog;
};
