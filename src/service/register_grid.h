#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>

#include "l10n/language.h"
#include "service/service_request.h"

// The register table's grid: up to ten RF register settings as address/value pairs, kept as
// the hexadecimal text shown (no prefix). Values are parsed only when a request is built.
struct RegisterRow {
    QString address;  // up to 2 hexadecimal digits
    QString value;    // up to 4
    bool operator==(const RegisterRow& o) const { return address == o.address && value == o.value; }
};

struct RegisterGrid {
    static constexpr int kRows = 10;
    static constexpr int kAddressDigits = 2;
    static constexpr int kValueDigits = 4;

    std::array<RegisterRow, kRows> rows;

    // Row r is 1-based, as the grid shows it.
    RegisterRow& row(int r) { return rows.at(static_cast<size_t>(r - 1)); }
    const RegisterRow& row(int r) const { return rows.at(static_cast<size_t>(r - 1)); }
    bool operator==(const RegisterGrid& o) const { return rows == o.rows; }
};

// Consecutive rows from row 1 with an address; counting stops at the first empty address.
int Chk_RegTot(const RegisterGrid& grid);
// 0 when any row has an address but no value, else 1.
int Chk_RegDt(const RegisterGrid& grid);

// The grid editor's key filter: whether `key` may be typed into a cell of `column` (1 address,
// 2 value) that holds `text`. Enter is not taken (it moves on to the next control).
bool registerKeyAccepted(int column, const QString& text, QChar key);

// A row as the radio gets it, or why it cannot be sent (naming the row and the field).
struct RegisterBytes {
    int address = 0;
    int value = 0;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
// Hexadecimal digits only, the address up to FF and the value up to FFFF. An empty value
// counts as 0 (Chk_RegDt has already refused rows that lack one).
RegisterBytes registerBytes(const RegisterGrid& grid, int row, UiLanguage language);
// An address typed for "Read RFIC".
RegisterBytes registerAddress(const RegisterGrid& grid, int row, UiLanguage language);

// Upper-case hexadecimal without leading zeros, as the grid shows what the radio sent.
QString hexText(int value);
// A register reply (address, value high, value low) as the row's texts.
RegisterRow registerRowFromReply(const QByteArray& payload);

// The register row request "Save To EEP" (0x5F) and "Write RFIC" (0x63) send:
// [cmd, 5, block (row − 1), sub (row count), address, value high, value low, checksum].
QByteArray build_reg_row(quint8 cmd, const RequestSelectors& selectors, const RegisterBytes& bytes);

// The text file: 20 lines, address and value of rows 1..10 in turn, CR LF after each.
QByteArray registerFileBytes(const RegisterGrid& grid);
// Loads line pairs into rows 1, 2, …; what did not fit (pairs beyond the tenth, a last line
// without its pair) is named in `dropped`, empty when everything was taken.
RegisterGrid registerGridFromFile(const QByteArray& bytes, UiLanguage language, QString* dropped);
