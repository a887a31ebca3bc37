#pragma once

// Texts of the desktop program's windows that are the same in both languages: they are not in
// the four bilingual tables, and they stay here so that every text a user sees lives in l10n.
namespace l10n::fixed {

// The start-up screen.
inline constexpr const char* kSplashLines[] = {
    "对讲机写频软件", "版本：2.0.0.0",  "发行日：2018.09", "Radio Progrmming Software",
    "Ver： 2.0.0.0",  "date： 2018.09",
};

// Menu items that keep one caption.
inline constexpr const char* kRateItem = "9600";
inline constexpr const char* kModelItem = "------";
inline constexpr const char* kChineseItem = "中文";
inline constexpr const char* kEnglishItem = "English";
inline constexpr const char* kComxItem = "comx";
inline constexpr const char* kComItemPrefix = "com";
inline constexpr const char* kRegisterTestItem = "RFReg_Test";
inline constexpr const char* kHardwareItem = "硬件选择";
inline constexpr const char* kMp3Item = "Mp3";
inline constexpr const char* kCrystalItem = "RF 晶体修正";
inline constexpr const char* kBootLoaderItem = "在线编程";

// The port scan button beside the port list, and the port list's entry for the simulated radio.
inline constexpr const char* kScanPortsButton = "扫描串口";
inline constexpr const char* kSimulatorPortItem = "sim";
inline constexpr const char* kPortListLabel = "COM";

// The "COM X" port picker.
inline constexpr const char* kPortPickerTitle = "COM X";
inline constexpr const char* kPortPickerLabel = "COM";
inline constexpr const char* kPortPickerChoose = "选择";

// The custom tone dialog.
inline constexpr const char* kCustomToneTitle = "CTCSS";
inline constexpr const char* kCustomToneOk = "OK";

// File dialogs: codeplug files and CSV files.
inline constexpr const char* kCodeplugFilter = "*.qzv (*.qzv)";
inline constexpr const char* kCsvFilter = "*.csv (*.csv)";

// The boot loader window.
inline constexpr const char* kBootWindowTitle = "在线编程（UART）";
inline constexpr const char* kBootOperations = "操作对象";
inline constexpr const char* kBootErase = "程序区擦除";
inline constexpr const char* kBootWrite = "烧录";
inline constexpr const char* kBootRead = "读取";
inline constexpr const char* kBootStartLabel = "起始地址：";
inline constexpr const char* kBootEndLabel = "结束地址：";
inline constexpr const char* kBootImageLabel = "选择烧写的目标文件(*.bin)";
inline constexpr const char* kBootOutputLabel = "设置读取的目标文件的存储路径(*.bin)";
inline constexpr const char* kBootOpen = "open";
inline constexpr const char* kBinaryFilter = "*.bin (*.bin)";

// The serial trace file.
inline constexpr const char* kTraceFilter = "*.log (*.log)";

// The engineering windows share their read and write buttons.
inline constexpr const char* kServiceRead = "读";
inline constexpr const char* kServiceWrite = "写";

// The register-table and band windows' text files.
inline constexpr const char* kTextFilter = "TXT (*.txt)";
inline constexpr const char* kPanelLoadFile = "调入文件";
inline constexpr const char* kPanelSaveFile = "保存文件";

// The register-table window.
inline constexpr const char* kRegisterWindowTitle = "RegTest";
inline constexpr const char* kRegisterFrame = "RF-Reg";
inline constexpr const char* kRegisterRowHeader = "xh";
inline constexpr const char* kRegisterAddressHeader = "Reg addr(hex)";
inline constexpr const char* kRegisterDataHeader = "Reg data(hex)";
inline constexpr const char* kRegisterClear = "CLEAR";
inline constexpr const char* kRegisterReadEeprom = "Read EEP";
inline constexpr const char* kRegisterSaveEeprom = "Save To EEP";
inline constexpr const char* kRegisterReadRfic = "Read RFIC";
inline constexpr const char* kRegisterWriteRfic = "Write RFIC";

// The crystal-correction window.
inline constexpr const char* kCrystalWindowTitle = "RF 晶体修正";
inline constexpr const char* kCrystalLabel = "晶体修正值";

// The engineering-mode window; its other captions change with the language.
inline constexpr const char* kCalibrationWindowTitle = "工程模式";
inline constexpr const char* kCalibrationPowerFrame = "Power DA";
inline constexpr const char* kCalibrationNoiseFrame = "Noise调整";
inline constexpr const char* kCalibrationNoiseNarrow = "Noise窄带";
inline constexpr const char* kCalibrationNoiseWide = "Noise宽带";
inline constexpr const char* kCalibrationVersion = "版本信息";

// The band-information window (and the engineering window's button that opens it).
inline constexpr const char* kBandWindowTitle = "频段信息";
inline constexpr const char* kBandHeaders[] = {"freq", "TX电压v", "Rx电压v", "RSSI"};
inline constexpr const char* kBandSupply = "VDD=3.3 V";
inline constexpr const char* kBandRestoreDefaults = "恢复默认值";
inline constexpr const char* kBandAdjustFrame = "分段调整";
inline constexpr const char* kBandTxFrame = "TX PWR";
inline constexpr const char* kBandRssiFrame = "RSSI";
inline constexpr const char* kBandLowHalf = "400-435M";
inline constexpr const char* kBandHighHalf = "440-470M";
inline constexpr const char* kBandAdjust = "调整";

}  // namespace l10n::fixed
