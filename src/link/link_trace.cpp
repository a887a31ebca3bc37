#include "link/link_trace.h"

#include "link/protocol.h"

namespace {

int byteAt(const QByteArray& bytes, int at) {
    return at < bytes.size() ? static_cast<quint8>(bytes[at]) : -1;
}

}  // namespace

LinkTrace::Sink LinkTrace::fileSink(QFileDevice* file) {
    return [file](const QString& line) {
        file->write(line.toUtf8() + '\n');
        file->flush();
    };
}

QString LinkTrace::line(qint64 ms, char direction, const QByteArray& bytes, const QString& note) {
    QString text = QStringLiteral("%1.%2 %3 %4")
                       .arg(ms / 1000)
                       .arg(ms % 1000, 3, 10, QLatin1Char('0'))
                       .arg(QLatin1Char(direction))
                       .arg(QString::fromLatin1(bytes.toHex(' ')));
    if (!note.isEmpty()) text += QStringLiteral("  ") + note;
    return text;
}

QString LinkTrace::describeRequest(const QByteArray& frame) {
    const int command = byteAt(frame, 0);
    const int block = byteAt(frame, 2);
    switch (command) {
        case protocol::kReadSettings:
            return QStringLiteral("S settings");
        case protocol::kReadChannel:
            return QStringLiteral("R ch %1").arg(block + 1);
        case protocol::kWriteSettings:
            return QStringLiteral("X settings");
        case protocol::kWriteChannel:
            return QStringLiteral("W ch %1").arg(block + 1);
        case protocol::kEndWrite:
            return QStringLiteral("E end");
        default:
            break;
    }
    if (command < 0) return {};
    // Service and boot loader commands: the command and its first two payload bytes.
    QString text = QStringLiteral("cmd %1").arg(command, 2, 16, QLatin1Char('0'));
    if (frame.size() > 4) {
        text += QStringLiteral(" %1 %2")
                    .arg(block, 2, 16, QLatin1Char('0'))
                    .arg(byteAt(frame, 3), 2, 16, QLatin1Char('0'));
    }
    return text;
}

void LinkTrace::sent(qint64 ms, const QByteArray& frame) {
    sink_(line(ms, '>', frame, describeRequest(frame)));
}

void LinkTrace::received(qint64 ms, const QByteArray& frame, bool checksumOk) {
    const int length = byteAt(frame, 1);
    sink_(line(ms, '<', frame,
               QStringLiteral("reply %1 bytes, checksum %2")
                   .arg(length)
                   .arg(checksumOk ? QStringLiteral("ok") : QStringLiteral("bad"))));
}

void LinkTrace::junk(qint64 ms, const QByteArray& bytes) {
    sink_(line(ms, '<', bytes, QStringLiteral("not a frame")));
}

void LinkTrace::textLine(qint64 ms, const QByteArray& bytes) {
    sink_(line(ms, '<', bytes, QStringLiteral("text line")));
}
