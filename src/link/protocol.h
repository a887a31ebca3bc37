#pragma once

#include <QtGlobal>

// The programming protocol's numbers: the command bytes of a session's requests and the
// layout of the records they carry. The program and the simulated radio both speak it from
// here.
namespace protocol {

// Requests of a read and a write session.
constexpr quint8 kReadSettings = 0x53;   // "S"
constexpr quint8 kReadChannel = 0x52;    // "R"
constexpr quint8 kWriteSettings = 0x58;  // "X"
constexpr quint8 kWriteChannel = 0x57;   // "W"
constexpr quint8 kEndWrite = 0x45;       // "E"

// Every addressed request starts its payload with block and sub; the read requests then name
// the record they want.
constexpr int kAddressBytes = 2;
constexpr char kSettingsRecordTag = 0x04;
constexpr char kChannelRecordTag = 0x05;

// The settings record S0..S3.
constexpr int kSettingsRecordSize = 4;

// The channel record: 11 bytes, or 13 when it carries the high bytes of custom DCS codes.
constexpr int kShortChannelRecord = 11, kLongChannelRecord = 13;
constexpr int kRxFreq = 0, kTxFreq = 2, kRxCode = 4, kTxCode = 5, kFlags = 6;
constexpr int kRxCustom = 7, kTxCustom = 9, kRxDcsHigh = 11, kTxDcsHigh = 12;

// Bits of the channel record's flag byte.
constexpr int kRxStep625 = 0x01, kTxStep625 = 0x02, kWide = 0x04;
constexpr int kRxInverted = 0x08, kTxInverted = 0x10, kHighPower = 0x20;

// The radio acknowledges "X" and "W" with an empty frame.
constexpr int kAcknowledgeLength = 0;

// The code byte that marks a custom DCS code ("CDCSS").
constexpr int kCdcssMarker = 162;

}  // namespace protocol
