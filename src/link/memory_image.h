#pragma once

#include <QByteArray>
#include <QString>

#include "model/codeplug.h"
#include "model/notice.h"
#include "model/result.h"

// The radio's memory image: the 4-byte settings record and the 11- or 13-byte channel record,
// and their conversion to and from the document. Records are big-endian.

// The settings record: S0 and S1 hold one bit per two-way setting, S0 three bits that are
// always set, S1 the band in its low two bits, S2 the channel count.
struct SettingBit {
    SettingKey key;
    int byte;  // 0: S0, 1: S1
    int mask;
};
inline constexpr SettingBit kSettingBits[] = {
    {SettingKey::normalmode, 0, 0x40}, {SettingKey::txen, 0, 0x80},
    {SettingKey::busytxdis, 0, 0x04},  {SettingKey::dtmfen, 0, 0x20},
    {SettingKey::bluetooth, 0, 0x08},  {SettingKey::voicebrc, 1, 0x80},
    {SettingKey::sos, 1, 0x10},        {SettingKey::fm, 1, 0x04},
    {SettingKey::autolock, 1, 0x08},   {SettingKey::tot, 1, 0x40},
    {SettingKey::agingtest, 1, 0x20},
};
inline constexpr int kSettingsFixedBits = 0x13;
inline constexpr int kSettingsBandMask = 0x03;

// "X" request frame (9 bytes) from the settings and chtot: block 0, sub 0, S0..S3.
QByteArray encode_settings(const Codeplug& doc);

// Takes the payload of a reply to "S" into the settings and chtot. A mode change rebuilds the
// code tables (resetting every code to "OFF"); `freqband` becomes the configured default band.
// Returns false (and changes nothing) for a payload shorter than 3 bytes.
bool decode_settings(Codeplug& doc, const QByteArray& payload);

// "W" request frame for one slot (16 or 18 bytes), or why it cannot be built: a ValueDoesNotFit
// error naming the channel and the field (a frequency below the band or too high, a custom
// value too large).
Result<QByteArray> encode_channel(const Codeplug& doc, int slot);

// Takes a reply to "R" into one slot. A reply of the wrong length, or whose step counts do not
// fit 15 bits, leaves the slot unchanged and returns false. The receive frequency goes through
// the grid's entry rule; its warnings, if any, are appended to `notices`.
bool decode_channel(Codeplug& doc, int slot, const QByteArray& payload, Notices* notices = nullptr);
