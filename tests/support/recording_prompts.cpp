#include "support/recording_prompts.h"

void RecordingPrompts::showStatus(const StatusText& status) {
    entries_.push_back({Entry::Status, status, {}});
}

void RecordingPrompts::showMessage(const MessageBox& box) {
    entries_.push_back({Entry::Box, {l10n::MessageId::MsgPortFault, {}}, box});
}

std::vector<MessageBox> RecordingPrompts::boxes() const {
    std::vector<MessageBox> result;
    for (const Entry& entry : entries_) {
        if (entry.kind == Entry::Box) result.push_back(entry.box);
    }
    return result;
}

QStringList RecordingPrompts::statusTexts() const {
    QStringList result;
    for (const Entry& entry : entries_) {
        if (entry.kind == Entry::Status) result << entry.status.text;
    }
    return result;
}

QStringList RecordingPrompts::transcript() const {
    QStringList lines;
    for (const Entry& entry : entries_) {
        if (entry.kind == Entry::Status) {
            lines << QStringLiteral("status: ") + entry.status.text;
            continue;
        }
        QString line = QStringLiteral("box: %1 | %2").arg(entry.box.text, entry.box.title);
        if (entry.box.icon == BoxIcon::Warning) line += QStringLiteral(" | warning");
        lines << line;
    }
    return lines;
}
