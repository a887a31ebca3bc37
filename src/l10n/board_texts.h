#pragma once

#include <QString>

#include "l10n/language.h"

// What the hardware-selection, volume and audio-player windows show. Their captions and
// result boxes are the same in both languages, as the factory tool has always shown them; the
// volume window's other boxes come from the message table.
namespace l10n {

enum class BoardText {
    HardwareReadOk,
    HardwareReadFailed,
    HardwareWriteOk,
    HardwareWriteFailed,
    TitleHardware,
    PlayerReadOk,
    PlayerReadFailed,
    PlayerWriteOk,
    PlayerWriteFailed,
    TitlePlayer,
    VolumeWriteOk,
    // A choice that is not in its list: %1 field, %2 the text, %3 the list.
    NotAnItem,
    // A write without a threshold from the list: %1 field, %2 the list.
    NoThreshold,
};

QString boardText(BoardText id, UiLanguage language);

}  // namespace l10n

namespace l10n::fixed {

// The hardware-selection window.
inline constexpr const char* kHardwareWindowTitle = "硬件选择";
inline constexpr const char* kPttFrame = "Ptt pin select";
inline constexpr const char* kPttLabel = "PTT PIN";
inline constexpr const char* kPKeyFrame = "P键 AD 门槛";
inline constexpr const char* kPKeyLabel = "Pkey ad door";

// The volume window: the record's labels in record order (microphone, eight speaker steps,
// second microphone), then its frames.
inline constexpr const char* kVolumeWindowTitle = "Volume";
inline constexpr const char* kVolumeLabels[] = {"MIC",   "Vol01", "Vol02", "Vol03", "Vol04",
                                                "Vol05", "Vol06", "Vol07", "Vol08", "PMIC"};
inline constexpr const char* kVolumeMicFrame = "MIC";
inline constexpr const char* kVolumeSpeakerFrame = "Spk";
inline constexpr const char* kVolumePmicFrame = "PMIC";
inline constexpr const char* kVolumeNote = "注：RF4818 方案 MIC:1--31";
inline constexpr const char* kVolumeRead = "READ";
inline constexpr const char* kVolumeWrite = "WRITE";

// The audio-player window.
inline constexpr const char* kPlayerWindowTitle = "Mp3";
inline constexpr const char* kPlayerFrame = "Mp3 VOL";
inline constexpr const char* kPlayerLabels[] = {"Vol1", "Vol2", "Vol3", "Vol4",
                                                "Vol5", "Vol6", "Vol7", "Vol8"};

}  // namespace l10n::fixed
