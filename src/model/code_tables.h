#pragma once

#include <QString>
#include <QStringList>

#include "l10n/language.h"

// The two signalling-code tables. A code's number, as the radio stores it, is its position in
// the active table; the display text is what the plan and the files keep.
constexpr int kNormalCodeCount = 100;
constexpr int kProfessionalCodeCount = 268;
constexpr int kProfessionalCustomTonePosition = 266;
constexpr int kProfessionalCdcssPosition = 267;

// The picker list for a mode: NormalCodeTable unless `normalmode` is 1 (ProfessionalCodeTable,
// whose custom-tone entry is the caption of `language`).
QStringList NormalCodeTable();
QStringList ProfessionalCodeTable(UiLanguage language);
QStringList buildCodeTable(int normalmode, UiLanguage language);

// A code's number is OptionIndexLookup(table, text) (model/settings.h), as for any selector.
// Entry at `number`; a number beyond the table gives an empty text.
QString codeText(const QStringList& table, int number);

// "自定义" and "Custom" both name the custom tone, whatever the current language.
bool isCustomToneText(const QString& text);
inline const char* const kCdcssText = "CDCSS";
inline const char* const kCodeOff = "OFF";
