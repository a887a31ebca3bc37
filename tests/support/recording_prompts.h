#pragma once

#include <QStringList>
#include <vector>

#include "platform/prompts.h"

// Keeps every status text and message box in the order they were shown, for tests.
class RecordingPrompts : public Prompts {
public:
    struct Entry {
        enum Kind { Status, Box } kind;
        StatusText status;
        MessageBox box;
    };

    void showStatus(const StatusText& status) override;
    void showMessage(const MessageBox& box) override;

    const std::vector<Entry>& entries() const { return entries_; }
    std::vector<MessageBox> boxes() const;
    QStringList statusTexts() const;
    // One line per entry: "status: <text>" or "box: <text> | <title>" (+ " | warning").
    QStringList transcript() const;
    void clear() { entries_.clear(); }

private:
    std::vector<Entry> entries_;
};
