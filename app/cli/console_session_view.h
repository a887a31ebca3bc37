#pragma once

#include <cstdio>

#include "link/session_view.h"

// The progress window of a terminal: one line per progress step on `stream`, or, when the
// stream is a terminal, one line rewritten in place.
class ConsoleSessionView : public SessionView {
public:
    explicit ConsoleSessionView(FILE* stream);

    void setSessionButtonsEnabled(bool) override {}
    void showProgress(const QString& caption) override;
    void setProgress(int value) override;
    void hideProgress() override;
    void pauseStatusTimers() override {}
    void resumeStatusTimers() override {}

private:
    FILE* stream_;
    bool interactive_;
    bool shown_ = false;
    QString caption_;
};
