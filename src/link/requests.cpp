#include "link/requests.h"

#include "link/frame.h"
#include "link/protocol.h"

namespace {

using namespace protocol;

constexpr char kSub = 0;

QByteArray addressed(quint8 command, int block, char what) {
    QByteArray payload;
    payload.append(static_cast<char>(block)).append(kSub).append(what);
    return LinkFrame{command, payload}.encode();
}

}  // namespace

QByteArray readSettingsRequest() {
    return addressed(kReadSettings, 0, kSettingsRecordTag);
}

QByteArray readChannelRequest(int slot) {
    return addressed(kReadChannel, slot, kChannelRecordTag);
}

QByteArray endWriteRequest() {
    return LinkFrame{kEndWrite, {}}.encode();
}
