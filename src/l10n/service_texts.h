#pragma once

#include <QString>

#include "l10n/language.h"

// What the engineering panels say: their fixed result texts and box titles (the same in both
// languages, as the radio's factory tool has always shown them), and the texts this program
// adds for values it refuses to send and for file lines it could not load.
namespace l10n {

enum class ServiceText {
    // Results of the register table and the band table.
    ClearOk,
    ClearFailed,
    RegReadOk,
    RegReadFailed,
    AddressEmpty,
    DataEmpty,
    CheckPort,
    RegWriteOk,
    BandWriteOk,
    // Results of the crystal panel and the calibration write.
    CrystalReadOk,
    CrystalReadFailed,
    CrystalWriteOk,
    CrystalWriteFailed,
    CalibrationWriteOk,
    // Box titles.
    TitleRfReg,
    TitleRegEmpty,
    TitleReg,
    TitleBandInfo,
    TitleCrystal,
    // Refusals: %1 field, %2 the text, %3 and %4 the range.
    NotANumberInRange,
    // %1 row number, %2 field.
    FieldOfRow,
    RegisterAddress,
    RegisterData,
    BandTxVoltage,
    BandRxVoltage,
    BandRssi,
    NoiseNarrow,
    NoiseWide,
    CrystalValue,
    // Loading a text file: %1 what was dropped.
    FileNotAllLoaded,
    FileLinesBeyond,   // %1 lines after line %2
    FileUnpairedLine,  // %1 line number
    // A request given up on while the radio's replies had another length: %1 bytes.
    ReplyWrongLength,
};

QString serviceText(ServiceText id, UiLanguage language);

}  // namespace l10n
