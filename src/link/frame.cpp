#include "link/frame.h"

quint8 LinkFrame::checksum(quint8 command, const QByteArray& payload) {
    unsigned sum = command + static_cast<unsigned>(payload.size());
    for (char byte : payload) sum += static_cast<quint8>(byte);
    return static_cast<quint8>(sum & 0xFF);
}

QByteArray LinkFrame::encode() const {
    QByteArray bytes;
    bytes.reserve(payload.size() + 3);
    bytes.append(static_cast<char>(command));
    bytes.append(static_cast<char>(payload.size()));
    bytes.append(payload);
    bytes.append(static_cast<char>(checksum(command, payload)));
    return bytes;
}
