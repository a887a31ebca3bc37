#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <functional>

// The serial traffic as a user attaches it to a bug report: one line per frame, or per run of
// bytes that is not a frame, with the milliseconds since the trace began, the direction ("> "
// to the radio, "< " from it), the bytes in hex and, where the frame is known, what it is.
//
//   0.000 > 53 03 00 00 04 5a  S settings
//   0.052 < 44 04 13 00 10 00 6b  reply 4 bytes, checksum ok
class LinkTrace {
public:
    using Sink = std::function<void(const QString& line)>;

    explicit LinkTrace(Sink sink) : sink_(std::move(sink)) {}
    // Lines into an open file, flushed one by one: the trace of a session that ends badly is
    // the one a report needs.
    static Sink fileSink(QFileDevice* file);

    void sent(qint64 ms, const QByteArray& frame);
    void received(qint64 ms, const QByteArray& frame, bool checksumOk);
    // Bytes from the radio that were no frame (noise, a frame cut short).
    void junk(qint64 ms, const QByteArray& bytes);
    // A text line from the radio, carriage return included.
    void textLine(qint64 ms, const QByteArray& bytes);

    // What a request is, from its command byte and payload ("R ch 4").
    static QString describeRequest(const QByteArray& frame);
    static QString line(qint64 ms, char direction, const QByteArray& bytes, const QString& note);

private:
    Sink sink_;
};
