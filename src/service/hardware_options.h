#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "l10n/language.h"
#include "service/service_request.h"
#include "service/value_lines.h"

// The two board options of the hardware-selection window: which processor pin carries the PTT
// key, and the voltage at which the analogue "P" key input counts as pressed. They are kept
// as the positions of the two lists' items, and outlive the window for the program's run.
struct HardwareOptions {
    int PttPinIndex = 0;     // 0 "P2.4", 1 "P2.1"; a text not in the list gives 2
    int PKeyLevelIndex = 0;  // 0..10 in the threshold list; the radio may report more
};

// "P2.4", "P2.1".
const QStringList& pttPinItems();
// The eleven threshold voltages, highest first: "2.40" … "1.20".
const QStringList& thresholdItems();

// The position of a text in its list, or the list's length when it is not there.
int FM10chk_Combo1(const QString& text);
int FM10chk_Combo2(const QString& text);

// The converter count of a threshold voltage: 1024 counts per 3.3 V, from the voltage in
// hundredths of a volt, halves to even at each step.
int thresholdCount(double volts);
// The count of threshold item `index` (0..10).
int thresholdCount(int index);
// The count as the write request carries it.
struct AdValue {
    quint8 high = 0;
    quint8 low = 0;
};
AdValue Get_adVal(int count);

// The read request, 65 03 00 00 05 6D with both selectors 0, and its reply: byte 0 the PTT
// pin (0 "P2.4", anything else "P2.1"), byte 1 the threshold index as the radio holds it.
QByteArray hardwareReadRequest(const RequestSelectors& selectors);
HardwareOptions decodeHardware(const QByteArray& payload);
// The text each list shows: an index with no item shows an empty text.
QString pttPinText(int index);
QString thresholdText(int index);

// The write request [0x64, 6, block, sub, pin, index, count high, count low, checksum], pin 0
// for "P2.4" and 255 otherwise; refused, naming the threshold, when its index has no item.
struct HardwareWrite {
    QByteArray frame;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
HardwareWrite hardwareWriteRequest(const HardwareOptions& options,
                                   const RequestSelectors& selectors, UiLanguage language);

// The command line's lines: ptt=P2.1 and pkey=2.10 (empty when the radio's index has no item).
constexpr const char* kPttName = "ptt";
constexpr const char* kPKeyName = "pkey";
QStringList hardwareValueLines(const HardwareOptions& options);
// Takes the values named. An unknown name, or a text not in its list, changes nothing: `error`
// gets the name, or (with `refused` set) the message naming the field.
bool applyHardwareValues(const std::vector<Assignment>& values, HardwareOptions* options,
                         QString* error, bool* refused, UiLanguage language);
