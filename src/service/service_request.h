#pragma once

#include <QByteArray>
#include <vector>

// The two address bytes most service requests carry first in their payload. They keep their
// values between requests and between panels: a request "left from the previous request"
// sends whatever the last one set.
struct RequestSelectors {
    int RequestBlock = 0;  // row, block or segment
    int RequestSub = 0;    // a count, an RF register address, or 0
};

// The request builders. Each returns the whole frame, checksum included (at most 33 bytes);
// the selectors are 0..255 whenever a panel builds with them.

// [cmd, 3, block, sub, 0x05, checksum]
QByteArray pack_pc_cmd(quint8 cmd, const RequestSelectors& selectors);
// As pack_pc_cmd with `value` in place of 0x05.
QByteArray pack_pc_cmd_byte(quint8 cmd, quint8 value, const RequestSelectors& selectors);
// [cmd, n + 2, block, sub, data…, checksum] for at most 28 data bytes; more are not sent (an
// empty frame comes back).
QByteArray pack_Data_Cmd(quint8 cmd, const std::vector<quint8>& data,
                         const RequestSelectors& selectors);
