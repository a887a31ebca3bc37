#include "platform/stream_prompts.h"

void StreamPrompts::showStatus(const StatusText& status) {
    if (status.text == status_) return;
    status_ = status.text;
    writeLine(QStringLiteral("status: ") + status.text);
}

void StreamPrompts::showMessage(const MessageBox& box) {
    // A box whose title only repeats its text ("Read OK" under "Read OK") needs no title here.
    if (box.title.isEmpty() || box.title == box.text) {
        writeLine(QStringLiteral("message: ") + box.text);
    } else {
        writeLine(QStringLiteral("message [%1]: %2").arg(box.title, box.text));
    }
}

void StreamPrompts::writeLine(const QString& line) {
    const QByteArray bytes = line.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream_);
    std::fputc('\n', stream_);
    std::fflush(stream_);
}
