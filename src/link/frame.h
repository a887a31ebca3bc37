#pragma once

#include <QByteArray>
#include <QtGlobal>

// One frame on the serial line: command byte, payload length n, n payload bytes, checksum
// = (command + n + payload bytes) mod 256. There is no start marker and no escaping.
struct LinkFrame {
    static constexpr int kMaxRequestPayload = 30;  // the request buffer holds 33 bytes
    static constexpr int kMaxReplyPayload = 130;
    static constexpr quint8 kFirstReplyCommand = 0x3D;  // '='
    static constexpr quint8 kLastReplyCommand = 0x48;   // 'H'

    quint8 command = 0;
    QByteArray payload;

    QByteArray encode() const;
    static quint8 checksum(quint8 command, const QByteArray& payload);
};
