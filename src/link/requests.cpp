#include "link/requests.h"

#include "link/frame.h"

namespace {

constexpr quint8 kReadSettings = 0x53;  // "S"
constexpr quint8 kReadChannel = 0x52;   // "R"
constexpr quint8 kEndWrite = 0x45;      // "E"
constexpr char kSub = 0;
// The byte after the address tells the radio which record is wanted.
constexpr char kSettingsRecord = 0x04;
constexpr char kChannelRecord = 0x05;

QByteArray addressed(quint8 command, int block, char what) {
    QByteArray payload;
    payload.append(static_cast<char>(block)).append(kSub).append(what);
    return LinkFrame{command, payload}.encode();
}

}  // namespace

QByteArray readSettingsRequest() {
    return addressed(kReadSettings, 0, kSettingsRecord);
}

QByteArray readChannelRequest(int slot) {
    return addressed(kReadChannel, slot, kChannelRecord);
}

QByteArray endWriteRequest() {
    return LinkFrame{kEndWrite, {}}.encode();
}
