#include "cli/console_session_view.h"

#include <unistd.h>

#include <algorithm>

ConsoleSessionView::ConsoleSessionView(FILE* stream)
    : stream_(stream), interactive_(::isatty(::fileno(stream)) == 1) {}

QString ConsoleSessionView::progressLine(const QString& caption, int percent, qint64 elapsedMs) {
    QString line = QStringLiteral("%1: %2 %").arg(caption).arg(percent, 3);
    if (percent > 0 && percent < 100) {
        const qint64 leftMs = elapsedMs * (100 - percent) / percent;
        line += QStringLiteral(", %1 s left").arg((leftMs + 999) / 1000);
    }
    return line;
}

void ConsoleSessionView::showProgress(const QString& caption) {
    shown_ = true;
    caption_ = caption;
    lastTenth_ = 0;
    lastWidth_ = 0;
    elapsed_.start();
}

void ConsoleSessionView::setProgress(int value) {
    if (!shown_ || value <= 0 || goal_ <= 0) return;
    const int percent = std::min(100, value * 100 / goal_);
    if (!interactive_) {
        if (percent / 10 <= lastTenth_) return;
        lastTenth_ = percent / 10;
    }
    const QByteArray line = progressLine(caption_, percent, elapsed_.elapsed()).toUtf8();
    if (interactive_) {
        // Spaces wipe what a longer line before left behind.
        const int pad = std::max(0, lastWidth_ - static_cast<int>(line.size()));
        std::fprintf(stream_, "\r%s%*s", line.constData(), pad, "");
        lastWidth_ = static_cast<int>(line.size());
    } else {
        std::fprintf(stream_, "%s\n", line.constData());
    }
    std::fflush(stream_);
}

void ConsoleSessionView::hideProgress() {
    if (shown_ && interactive_ && lastWidth_ > 0) std::fputc('\n', stream_);
    shown_ = false;
}
