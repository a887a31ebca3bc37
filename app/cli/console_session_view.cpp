#include "cli/console_session_view.h"

#include <unistd.h>

ConsoleSessionView::ConsoleSessionView(FILE* stream)
    : stream_(stream), interactive_(::isatty(::fileno(stream)) == 1) {}

void ConsoleSessionView::showProgress(const QString& caption) {
    shown_ = true;
    caption_ = caption;
}

void ConsoleSessionView::setProgress(int value) {
    if (!shown_ || value == 0) return;
    const QByteArray line =
        QStringLiteral("%1: %2/%3").arg(caption_).arg(value).arg(kProgressMaximum).toUtf8();
    std::fprintf(stream_, interactive_ ? "\r%s" : "%s\n", line.constData());
    std::fflush(stream_);
}

void ConsoleSessionView::hideProgress() {
    if (shown_ && interactive_) std::fputc('\n', stream_);
    shown_ = false;
}
