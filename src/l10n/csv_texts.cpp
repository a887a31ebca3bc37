#include "l10n/csv_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of CellFaultKind; %1, %2... are the fault's arguments.
const TextPair kFaultTexts[] = {
    {"有 %1 个字段，应为 %2 个", "%1 fields where %2 belong"},
    {"引号没有闭合", "a quoted field is never closed"},
    {"表头应为“%1”", "the header should read \"%1\""},
    {"“%1”不是 1 到 25 的信道号", "\"%1\" is not a channel number from 1 to 25"},
    {"信道 %1 重复出现", "channel %1 appears a second time"},
    {"缺少信道 %1 的行", "channel %1 has no row"},
    {"缺少设置部分（“setting,value”行及其下的设置）",
     "the settings section (a \"setting,value\" row and the settings below it) is missing"},
    {"“%1”不是数字", "\"%1\" is not a number"},
    {"“%1”超过 %2 个字符", "\"%1\" is longer than %2 characters"},
    {"%1 不在频段 %2–%3 MHz 内", "%1 is outside the band %2–%3 MHz"},
    {"“%1”不在当前模式的亚音列表中", "\"%1\" is not in this mode's code list"},
    {"自定义亚音“%1”不在 %2 至 %3 Hz（不含）之间", "custom tone \"%1\" is not from %2 up to %3 Hz"},
    {"“%1”不是数字码（D 或 I 加三位八进制数字，或对讲机保存的数值）",
     "\"%1\" is not a DCS code (D or I and three octal digits, or the number the radio keeps)"},
    {"“%1”不是以下之一：%2", "\"%1\" is none of: %2"},
    {"信道 %1 有效，但它前面有无效信道：有效信道须从信道 1 起连续",
     "channel %1 is active after an inactive one: the active channels run from channel 1 on"},
    {"没有有效信道：至少信道 1 须有效", "no channel is active: channel 1 at least must be"},
    {"“%1”不是设置项", "\"%1\" is not a setting"},
    {"设置 %1 重复出现", "setting %1 appears a second time"},
    {"缺少设置 %1", "setting %1 is missing"},
    {"“%1”不是以下之一：%2，也不是 0 到 32767 的选项序号",
     "\"%1\" is none of: %2, nor an option number from 0 to 32767"},
    {"“%1”不是整数", "\"%1\" is not a whole number"},
};
static_assert(std::size(kFaultTexts) == static_cast<int>(CellFaultKind::NotAWholeNumber) + 1);

enum Fixed { Yes, No, RowOnly, RowAndColumn, Refused, MoreFaults, ExportItem, ImportItem };
const TextPair kFixedTexts[] = {
    {"是", "yes"},
    {"否", "no"},
    {"第 %1 行：%2", "row %1: %2"},
    {"第 %1 行第 %2 列（%3）：%4", "row %1, column %2 (%3): %4"},
    {"CSV 文件没有导入，什么也没有改动。有问题的单元格：",
     "The CSV file was not imported and nothing was changed. The bad cells:"},
    {"……另有 %1 处", "… and %1 more"},
    {"导出 CSV…", "Export CSV…"},
    {"导入 CSV…", "Import CSV…"},
};

QString fixed(Fixed id, UiLanguage language) {
    return lookUp(kFixedTexts, id, language);
}

// %1..%9 replaced in one pass, so that a cell which itself holds "%2" is shown as it is.
QString substituted(const QString& text, const QStringList& args) {
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('%') && i + 1 < text.size() && text[i + 1] >= QLatin1Char('1') &&
            text[i + 1] <= QLatin1Char('9')) {
            out += args.value(text[i + 1].unicode() - '1');
            ++i;
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace

QString activeWord(bool active, UiLanguage language) {
    return fixed(active ? Yes : No, language);
}

QString describeCellFault(const CellFault& fault, UiLanguage language) {
    const QString what =
        substituted(lookUp(kFaultTexts, static_cast<int>(fault.kind), language), fault.args);
    const QString row = QString::number(fault.row);
    if (fault.column == 0) return substituted(fixed(RowOnly, language), {row, what});
    return substituted(fixed(RowAndColumn, language),
                       {row, QString::number(fault.column), fault.columnName, what});
}

QString csvRefusedHeading(UiLanguage language) {
    return fixed(Refused, language);
}

QStringList describeCellFaults(const CellFaults& faults, UiLanguage language, int shownAtMost) {
    QStringList lines;
    for (const CellFault& fault : faults) {
        if (lines.size() == shownAtMost) {
            const auto rest = static_cast<qsizetype>(faults.size()) - shownAtMost;
            return lines << fixed(MoreFaults, language).arg(rest);
        }
        lines << describeCellFault(fault, language);
    }
    return lines;
}

QString exportCsvMenuItem(UiLanguage language) {
    return fixed(ExportItem, language);
}

QString importCsvMenuItem(UiLanguage language) {
    return fixed(ImportItem, language);
}

}  // namespace l10n
