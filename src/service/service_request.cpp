#include "service/service_request.h"

#include "link/frame.h"

namespace {

constexpr int kMaxDataBytes = LinkFrame::kMaxRequestPayload - 2;

QByteArray addressed(quint8 cmd, const RequestSelectors& selectors, const QByteArray& data) {
    QByteArray payload;
    payload.append(static_cast<char>(selectors.RequestBlock))
        .append(static_cast<char>(selectors.RequestSub))
        .append(data);
    return LinkFrame{cmd, payload}.encode();
}

}  // namespace

QByteArray pack_pc_cmd(quint8 cmd, const RequestSelectors& selectors) {
    return pack_pc_cmd_byte(cmd, 0x05, selectors);
}

QByteArray pack_pc_cmd_byte(quint8 cmd, quint8 value, const RequestSelectors& selectors) {
    return addressed(cmd, selectors, QByteArray(1, static_cast<char>(value)));
}

QByteArray pack_Data_Cmd(quint8 cmd, const std::vector<quint8>& data,
                         const RequestSelectors& selectors) {
    if (static_cast<int>(data.size()) > kMaxDataBytes) return {};
    QByteArray bytes;
    for (quint8 value : data) bytes.append(static_cast<char>(value));
    return addressed(cmd, selectors, bytes);
}
