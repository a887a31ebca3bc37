// Every request the panels build, byte for byte.

#include "service/service_request.h"

#include <gtest/gtest.h>

#include "service/band_table.h"
#include "service/calibration.h"
#include "service/crystal.h"
#include "service/register_grid.h"
#include "service/service_protocol.h"

namespace {

QString hex(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toHex(' '));
}

RegisterBytes row(int address, int value) {
    RegisterBytes bytes;
    bytes.address = address;
    bytes.value = value;
    return bytes;
}

TEST(ServiceRequests, HoldTheirBytes) {
    CalibrationValues typed;
    typed[CalibrationField::RssiNarrow] = "100";
    typed[CalibrationField::PowerLow] = " 34.5 ";  // halves go to the even neighbour
    typed[CalibrationField::RxPwm] = "not sent";
    const struct {
        const char* what;
        QByteArray frame;
        const char* expected;
    } cases[] = {
        {"Read EEP, row 1", pack_pc_cmd(service::kEepromRowRead, {0, 10}), "60 03 00 0a 05 72"},
        {"the fifth byte set", pack_pc_cmd_byte(0x65, 0x09, {0, 0}), "65 03 00 00 09 71"},
        {"test mode start", pack_Data_Cmd(0x66, {1, 0, 0}, {0, 0}), "66 05 00 00 01 00 00 6c"},
        {"no data", pack_Data_Cmd(0x64, {}, {2, 3}), "64 02 02 03 6b"},
        {"28 data bytes fill the buffer",
         pack_Data_Cmd(0x64, std::vector<quint8>(28, 1), {}).left(2), "64 1e"},
        {"29 do not fit", pack_Data_Cmd(0x64, std::vector<quint8>(29, 1), {}), ""},
        {"Write RFIC, one row", build_reg_row(service::kRficWrite, {0, 1}, row(0x3A, 0x1F00)),
         "63 05 00 01 3a 1f 00 c2"},
        {"Save To EEP, row 3 of 4", build_reg_row(service::kEepromRowWrite, {2, 4}, row(5, 0xFFFF)),
         "5f 05 02 04 05 ff ff 6d"},
        {"calibration read", calibrationReadRequest(), "54 03 00 00 07 5e"},
        {"calibration write, initial values",
         calibrationWriteRequest(CalibrationValues(), 0, 0, UiLanguage::English).frame,
         "59 0a 00 00 46 23 2a 28 80 00 35 35 08"},
        {"calibration write, typed",
         calibrationWriteRequest(typed, 0, 0, UiLanguage::English).frame,
         "59 0a 00 00 46 22 64 28 80 00 35 35 41"},
        {"crystal read", crystalReadRequest({0, 0}), "6d 03 00 00 05 75"},
        {"crystal write -3", crystalWriteRequest("-3", {0, 0}, UiLanguage::English).frame,
         "6e 04 00 00 00 fd 6f"},
        {"crystal write -127", crystalWriteRequest("-127", {0, 0}, UiLanguage::English).frame,
         "6e 04 00 00 00 81 f3"},
        {"band segment 1", bandWriteRequest({1, 7}, QByteArray(20, '\x83')).left(4), "69 16 01 07"},
        {"band defaults", pack_pc_cmd(service::kBandDefaults, {3, 7}), "6a 03 03 07 05 7c"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(hex(c.frame), QString::fromLatin1(c.expected)) << c.what;
    }
    EXPECT_EQ(bandWriteRequest({1, 7}, QByteArray(20, '\x83')).size(), 25);
}

}  // namespace
