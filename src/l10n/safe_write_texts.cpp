#include "l10n/safe_write_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of SafeWriteText.
const TextPair kSafeWriteTexts[] = {
    {"写频前备份", "Backup before write"},
    {"写频后校验", "Verify after write"},
    {"写频前已备份对讲机数据：%1", "The radio's plan was backed up to %1"},
    {"备份中以下信道无法识别，已留空：%1",
     "These channels could not be read for the backup and were left empty: %1"},
    {"写频前未能读出对讲机数据作备份，没有写入任何内容：%1",
     "Nothing was written: the backup read before writing failed: %1"},
    {"写频前未能保存备份文件，没有写入任何内容：%1",
     "Nothing was written: the backup could not be saved: %1"},
    {"对讲机没有回复读取设置的请求", "the radio did not answer the request for its settings"},
    {"对讲机没有回复读取信道%1的请求", "the radio did not answer the request for channel %1"},
    {"串口出错：%1", "the port failed: %1"},
    {"数据已写入，但写频后校验未能读回：%1",
     "The plan was written, but reading it back to verify failed: %1"},
    {"写频后校验失败，对讲机中的数据与写入的不同：",
     "Verify after write failed: the radio holds something else than was written:"},
    {"信道%1，%2：应为 %3，实为 %4", "channel %1, %2: written %3, found %4"},
    {"设置，%1：应为 %2，实为 %3", "settings, %1: written %2, found %3"},
    {"……另有 %1 处不同", "… and %1 more differences"},
    {"接收步长", "Rx step"},
    {"发射步长", "Tx step"},
    {"接收自定义亚音/数字亚音", "Rx custom tone or DCS"},
    {"发射自定义亚音/数字亚音", "Tx custom tone or DCS"},
    {"标志字节的未用位", "unused flag bits"},
    {"固定位", "fixed bits"},
    {"数据长度", "record length"},
    {"信道数据", "channel record"},
};

static_assert(std::size(kSafeWriteTexts) == static_cast<int>(SafeWriteText::WholeRecord) + 1);

}  // namespace

QString safeWriteText(SafeWriteText id, UiLanguage language) {
    return lookUp(kSafeWriteTexts, static_cast<int>(id), language);
}

QString backupChannelsUnread(const QList<int>& channels, UiLanguage language) {
    if (channels.isEmpty()) return {};
    QStringList numbers;
    for (int channel : channels) numbers << QString::number(channel);
    return safeWriteText(SafeWriteText::BackupChannelsUnread, language)
        .arg(numbers.join(QStringLiteral(", ")));
}

}  // namespace l10n
