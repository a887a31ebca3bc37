#pragma once

#include <QElapsedTimer>
#include <QString>
#include <cstdio>

#include "link/session_view.h"

// The progress window of a terminal. On a terminal: one line rewritten in place with the
// percentage and the time left. Otherwise (a log, a pipe): a plain line at every tenth of the
// way, so that a log stays short.
class ConsoleSessionView : public SessionView {
public:
    explicit ConsoleSessionView(FILE* stream);

    void setSessionButtonsEnabled(bool) override {}
    void showProgress(const QString& caption) override;
    void setProgress(int value) override;
    void setProgressGoal(int value) override { goal_ = value; }
    void hideProgress() override;
    void pauseStatusTimers() override {}
    void resumeStatusTimers() override {}

    // The line shown for `percent` done after `elapsedMs`.
    static QString progressLine(const QString& caption, int percent, qint64 elapsedMs);

private:
    FILE* stream_;
    bool interactive_;
    bool shown_ = false;
    QString caption_;
    int goal_ = kProgressMaximum;
    int lastTenth_ = 0;
    int lastWidth_ = 0;
    QElapsedTimer elapsed_;
};
