#include "service/register_grid.h"

#include <cctype>

#include "l10n/service_texts.h"
#include "link/frame.h"
#include "service/field_value.h"
#include "service/panel_file.h"

using l10n::ServiceText;

namespace {

constexpr int kBackspace = 8;
constexpr int kDelete = 127;

std::optional<int> hexNumber(const QString& text) {
    const QString digits = text.trimmed();
    if (digits.isEmpty() || digits.size() > 8) return std::nullopt;
    // Digits only: toUInt alone would also take a sign or a "0x" prefix.
    for (QChar c : digits) {
        if (!isxdigit(c.toLatin1())) return std::nullopt;
    }
    return static_cast<int>(std::min<uint>(digits.toUInt(nullptr, 16), 0x7FFFFFFF));
}

RegisterBytes checkedHex(const QString& text, int max, ServiceText field, int row,
                         UiLanguage language, int* out) {
    const std::optional<int> value = hexNumber(text);
    if (value && *value <= max) {
        *out = *value;
        return {};
    }
    RegisterBytes refused;
    refused.error = outOfRangeMessage(fieldOfRow(l10n::serviceText(field, language), row, language),
                                      text, QStringLiteral("0"), hexText(max), language);
    return refused;
}

}  // namespace

int Chk_RegTot(const RegisterGrid& grid) {
    int count = 0;
    while (count < RegisterGrid::kRows && !grid.rows[static_cast<size_t>(count)].address.isEmpty())
        ++count;
    return count;
}

int Chk_RegDt(const RegisterGrid& grid) {
    for (const RegisterRow& row : grid.rows) {
        if (!row.address.isEmpty() && row.value.isEmpty()) return 0;
    }
    return 1;
}

bool registerKeyAccepted(int column, const QString& text, QChar key) {
    const int limit = column == 2 ? RegisterGrid::kValueDigits : RegisterGrid::kAddressDigits;
    const int code = key.unicode();
    if (text.size() >= limit) return code == kBackspace;
    return (code >= '0' && code <= 'f') || code == '.' || code == kDelete || code == kBackspace;
}

RegisterBytes registerAddress(const RegisterGrid& grid, int row, UiLanguage language) {
    RegisterBytes bytes;
    const RegisterBytes refused = checkedHex(
        grid.row(row).address, 0xFF, ServiceText::RegisterAddress, row, language, &bytes.address);
    return refused.ok() ? bytes : refused;
}

RegisterBytes registerBytes(const RegisterGrid& grid, int row, UiLanguage language) {
    RegisterBytes bytes = registerAddress(grid, row, language);
    if (!bytes.ok() || grid.row(row).value.trimmed().isEmpty()) return bytes;
    const RegisterBytes refused = checkedHex(grid.row(row).value, 0xFFFF, ServiceText::RegisterData,
                                             row, language, &bytes.value);
    return refused.ok() ? bytes : refused;
}

QString hexText(int value) {
    return QString::number(value, 16).toUpper();
}

RegisterRow registerRowFromReply(const QByteArray& payload) {
    const auto byte = [&payload](int i) {
        return static_cast<int>(static_cast<quint8>(payload.at(i)));
    };
    return {hexText(byte(0)), hexText(byte(1) * 256 + byte(2))};
}

QByteArray build_reg_row(quint8 cmd, const RequestSelectors& selectors,
                         const RegisterBytes& bytes) {
    QByteArray payload;
    payload.append(static_cast<char>(selectors.RequestBlock))
        .append(static_cast<char>(selectors.RequestSub))
        .append(static_cast<char>(bytes.address))
        .append(static_cast<char>(bytes.value >> 8))
        .append(static_cast<char>(bytes.value & 0xFF));
    return LinkFrame{cmd, payload}.encode();
}

QByteArray registerFileBytes(const RegisterGrid& grid) {
    QStringList lines;
    for (const RegisterRow& row : grid.rows) lines << row.address << row.value;
    return panelFileBytes(lines);
}

RegisterGrid registerGridFromFile(const QByteArray& bytes, UiLanguage language, QString* dropped) {
    const QStringList lines = panelFileLines(bytes);
    RegisterGrid grid;
    const int pairs = std::min<int>(static_cast<int>(lines.size()) / 2, RegisterGrid::kRows);
    for (int r = 1; r <= pairs; ++r) grid.row(r) = {lines[2 * r - 2], lines[2 * r - 1]};
    const int used = 2 * RegisterGrid::kRows;
    const int unpaired =
        lines.size() <= used && lines.size() % 2 == 1 ? static_cast<int>(lines.size()) : 0;
    if (dropped) *dropped = droppedLinesMessage(lines, used, unpaired, language);
    return grid;
}
