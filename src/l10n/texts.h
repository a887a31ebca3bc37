#pragma once

#include <QString>

#include "l10n/language.h"

// The four bilingual text tables. Every caption and message the program shows comes from here;
// other code refers to entries by index (or by name for the entries it uses), never by copy.
namespace l10n {

constexpr int kCaptionCount = 68;
constexpr int kServiceCaptionCount = 10;
constexpr int kIdCaptionCount = 7;
constexpr int kMessageCount = 30;

// Names for the caption entries the core uses itself.
enum Caption : int {
    CapWindowTitle = 0,
    CapStandardUsa = 20,  // 20..23: options of the frequency-standard selector
    CapModeNormal = 25,
    CapModeProfessional = 26,
    CapTx = 27,
    CapEnable = 29,
    CapDisable = 30,
    CapBusyLock = 31,
    CapOff = 33,
    CapOn = 34,
    CapDtmf = 35,
    CapSwitchOff = 37,  // 37, 38: the off/on options shared by the switch-like settings
    CapSwitchOn = 38,
    CapChannel = 40,
    CapRxFrequency = 41,
    CapRxCode = 42,
    CapTxFrequency = 43,
    CapTxCode = 44,
    CapBandwidth = 45,
    CapPower = 46,
    CapChannelCount = 48,
    CapFrequencyStep = 49,
    CapNarrow = 54,
    CapWide = 55,
    CapHigh = 56,
    CapLow = 57,
    CapVoice = 59,
    CapBluetooth = 60,
    CapCustomTone = 61,
    CapAutoLock = 62,
    CapBand0 = 63,  // 63..66: options of the band selector
    CapCdcss = 67,
};

enum ServiceCaption : int {
    SvcWriteToRadio = 6,
};

enum class MessageId : int {
    MsgPortFault = 0,
    MsgWarningTitle,
    MsgPortClosed,
    MsgPortLabel,
    MsgWriting,
    MsgWriteDone,
    MsgWriteFailed,
    MsgLinkFailed,
    MsgReading,
    MsgReadDone,
    MsgReadFailed,
    MsgPortOpen,
    MsgChannelPrefix,
    MsgChannelFreqError,
    MsgWriteCheckInput,
    MsgSetPort,
    MsgChannelCountError,
    MsgOpenPort,
    MsgModelReadFailed,
    MsgConfirmExit,
    MsgConfirmExitTitle,
    MsgLinkFailedCheckRadio,
    MsgServiceReadOk,
    MsgServiceReadTimeout,
    MsgAdjust,
    MsgWriteCheckInputAlt,
    MsgServiceWriteFailed,
    MsgIdError,
    MsgReadFromRadio,
    MsgCtcssError,
};

// Out-of-range indices give an empty text rather than undefined behaviour.
QString caption(int index, UiLanguage language);
QString serviceCaption(int index, UiLanguage language);
QString idCaption(int index, UiLanguage language);
QString message(MessageId id, UiLanguage language);

// A message about a channel: prefix, 1-based channel number and text run together,
// e.g. "第3信道频率输入错误，请重新输入" / "Num3Channl Frequency Input error，Please edit again".
QString channelMessage(MessageId id, int channelNumber, UiLanguage language);

// The fixed version suffix of the main window title (four blanks before "ver").
inline constexpr const char* kTitleSuffix = "    ver:19.0.13";

}  // namespace l10n
