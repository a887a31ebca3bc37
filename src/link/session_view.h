#pragma once

#include <QString>

// What a read or write session (and the reply timer's give-up) does to the main window beside
// the status bar and message boxes: the two session buttons, the progress window, and the two
// status timers. The desktop program implements it on its widgets; the command line shows the
// progress only.
class SessionView {
public:
    static constexpr int kProgressMaximum = 246;

    virtual ~SessionView() = default;

    // The write button Command1 and the read button Command2, together.
    virtual void setSessionButtonsEnabled(bool enabled) = 0;
    // Shows the progress window with its bar, under `caption`.
    virtual void showProgress(const QString& caption) = 0;
    virtual void setProgress(int value) = 0;
    // Where the bar will stand when the session has run to its end; the bar's own maximum is
    // larger (a read has always ended at 75 of 246). Views that show a percentage use it.
    virtual void setProgressGoal(int value) { (void)value; }
    // Bar to 0; bar and window hidden.
    virtual void hideProgress() = 0;
    // Timer1 (port state in the status bar) and Timer2. Resumed, the status bar shows the port
    // state a second later.
    virtual void pauseStatusTimers() = 0;
    virtual void resumeStatusTimers() = 0;
};

// For owners that have no window to update (tests of the transport alone, service tools run
// from a terminal).
class NullSessionView : public SessionView {
public:
    void setSessionButtonsEnabled(bool) override {}
    void showProgress(const QString&) override {}
    void setProgress(int) override {}
    void hideProgress() override {}
    void pauseStatusTimers() override {}
    void resumeStatusTimers() override {}
};
