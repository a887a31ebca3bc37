#pragma once

#include <QtGlobal>

// The service commands the engineering panels send on the programming link, and the layout
// of what they carry. The program and the simulated radio both speak them from here.
namespace service {

constexpr quint8 kCalibrationRead = 0x54;   // "T"
constexpr quint8 kCalibrationWrite = 0x59;  // "Y"
constexpr quint8 kEepromRowWrite = 0x5F;    // "_"  "Save To EEP", one row
constexpr quint8 kEepromRowRead = 0x60;     // "`"  "Read EEP", one row
constexpr quint8 kEepromClear = 0x61;       // "a"
constexpr quint8 kRficRead = 0x62;          // "b"  one RF register
constexpr quint8 kRficWrite = 0x63;         // "c"  one RF register
constexpr quint8 kBandRead = 0x67;          // "g"  one segment
constexpr quint8 kVersionRead = 0x68;       // "h"  answered with text lines
constexpr quint8 kBandWrite = 0x69;         // "i"  with a 22-byte payload: one segment
constexpr quint8 kBandDefaults = 0x6A;      // "j"  with a 3-byte payload
constexpr quint8 kCrystalRead = 0x6D;       // "m"
constexpr quint8 kCrystalWrite = 0x6E;      // "n"
constexpr quint8 kVolumeRead = 0x56;        // "V"
constexpr quint8 kVolumeWrite = 0x5C;       // backslash
constexpr quint8 kHardwareWrite = 0x64;     // "d"
constexpr quint8 kHardwareRead = 0x65;      // "e"
constexpr quint8 kPlayerRead = 0x69;        // "i"  with a 3-byte payload; kBandWrite's code
constexpr quint8 kPlayerWrite = 0x6A;       // "j"  with an 11-byte payload; kBandDefaults' code
constexpr quint8 kMonitor = 0x55;           // "U"  payload: one mode byte
constexpr quint8 kIdentityWrite = 0x5A;     // "Z"  payload: the four identity bytes
constexpr quint8 kIdentityRead = 0x5B;      // "["
constexpr quint8 kTestMode = 0x66;          // "f"  payload: 0, 0, test type, 0, 0

// pack_pc_cmd's fifth byte, and the one the calibration read asks with.
constexpr quint8 kPlainRequestTag = 0x05;
constexpr quint8 kCalibrationTag = 0x07;

// Replies.
constexpr int kRegisterReplySize = 3;  // address, value high, value low
constexpr int kCalibrationRecordSize = 8;
constexpr int kBandSegmentSize = 20;
constexpr int kBandSegments = 4;
constexpr int kBandPointsRead = 15;  // a read uses the first 15 bytes of a segment
constexpr int kCrystalReplySize = 5;
constexpr int kCrystalReplyByte = 4;
constexpr int kHardwareReplySize = 2;  // PTT pin, threshold index (a longer reply is read too)
constexpr int kVolumeRecordSize = 10;
constexpr int kPlayerRecordSize = 9;  // a byte the program does not use, then eight levels
constexpr int kIdentitySize = 4;
// Monitor frames: byte 0 says which; an RSSI frame carries 7 bytes, a battery frame 4.
constexpr int kRssiFrameSize = 7;
constexpr int kBatteryFrameSize = 4;

// The calibration record's bytes.
constexpr int kCalPowerHigh = 0, kCalPowerLow = 1, kCalRssiNarrow = 2, kCalRssiWide = 3;
constexpr int kCalFixed4 = 4, kCalFixed5 = 5, kCalNoiseNarrow = 6, kCalNoiseWide = 7;
constexpr quint8 kCalFixed4Value = 128, kCalFixed5Value = 0;

}  // namespace service
