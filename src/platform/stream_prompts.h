#pragma once

#include <cstdio>

#include "platform/prompts.h"

// Prompts for a terminal: one line per status text or message box, flushed at once so that
// the lines keep their order with anything else the program prints. Like the status bar it
// stands for, it shows a status text again only when it changes.
//   status: Reading......
//   message: Read OK
//   message [NOTE]: Transmission Error，Check Radio
class StreamPrompts : public Prompts {
public:
    explicit StreamPrompts(FILE* stream) : stream_(stream) {}

    void showStatus(const StatusText& status) override;
    void showMessage(const MessageBox& box) override;

private:
    void writeLine(const QString& line);

    FILE* stream_;
    QString status_;
};
