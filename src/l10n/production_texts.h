#pragma once

#include <QString>

#include "l10n/language.h"

// What the production-line panels (radio identity, test mode) say and show beyond the shared
// caption tables. The test window's texts are the same in both languages.
namespace l10n {

enum class ProductionText {
    TestWriteOk,
    TestWriteFailed,
    TitleTestMode,
    // The test window once another operation on the link, or a lost port, has ended its monitor.
    MonitorEnded,
};

QString productionText(ProductionText id, UiLanguage language);

namespace fixed {
// The test window.
inline constexpr const char* kTestWindowTitle = "Test mode";
inline constexpr const char* kRssiFrame = "RSSI";
inline constexpr const char* kBatteryFrame = "Battery AD";
inline constexpr const char* kTestFrame = "测试模式";
inline constexpr const char* kMonitorStart = "start";
inline constexpr const char* kMonitorStop = "stop";
inline constexpr const char* kRssiLabel = "RSSI(Reg68)";
inline constexpr const char* kSnrLabel = "SNR(Reg102)";
inline constexpr const char* kAfcLabel = "AFC(Reg70)";
inline constexpr const char* kAudioLabel = "AudioLv(Reg74)";
inline constexpr const char* kChargingLabel = "charging";
inline constexpr const char* kTestTypeLabel = "测试类型";
inline constexpr const char* kDtmfTransmitTest = "DTMF 发射测试";
inline constexpr const char* kDtmfReceiveTest = "DTMF 接收测试";
inline constexpr const char* kParameter1 = "参数1";
inline constexpr const char* kParameter2 = "参数2";
inline constexpr const char* kTestStart = "开始";
inline constexpr const char* kTestStop = "停止";
// The identity window's title, which stays in Chinese in both languages.
inline constexpr const char* kIdentityWindowTitle = "输入ID";
}  // namespace fixed

}  // namespace l10n
