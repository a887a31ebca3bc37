#include "l10n/boot_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of BootText.
const TextPair kBootTexts[] = {
    {"boot link wait......", "boot link wait......"},
    {"boot link No Ack!!!!", "boot link No Ack!!!!"},
    {"Erase start......", "Erase start......"},
    {"Erase OK!!!!", "Erase OK!!!!"},
    {"write start......", "write start......"},
    {"Write OK!!!!", "Write OK!!!!"},
    {"read start......", "read start......"},
    {"Read OK!!!!", "Read OK!!!!"},
    {"START No Ack!!!!", "START No Ack!!!!"},
    {"No Ack!!!!", "No Ack!!!!"},
    {"START address ERROR!!!!", "START address ERROR!!!!"},
    {"END address ERROR!!!!", "END address ERROR!!!!"},
    {"Length  ERROR!!!!", "Length  ERROR!!!!"},
    {"烧写的目标文件名不能空！！", "烧写的目标文件名不能空！！"},
    {"烧写的目标文件:", "烧写的目标文件:"},
    {"File too larger!!!!", "File too larger!!!!"},
    {"File length is 0!!!!", "File length is 0!!!!"},
    {"文件（%1 字节）比地址范围（%2 字节）长，未擦除任何内容",
     "The image (%1 bytes) is longer than the address range (%2 bytes); nothing was erased"},
    {"verify start......", "verify start......"},
    {"Verify OK!!!!  CRC-32 文件 %1，对讲机 %2", "Verify OK!!!!  CRC-32 image %1, radio %2"},
    {"Verify ERROR!!!!  地址 %1：应为 %2，读出 %3",
     "Verify ERROR!!!!  address %1: expected %2, found %3"},
    {"操作已取消", "Cancelled"},
    {"请设置串口", "Please check COM Port"},
    {"请让对讲机进入升级模式", "Put the radio in boot mode"},
    {"写入后读回校验", "Verify after writing"},
    {"取消", "Cancel"},
};

static_assert(std::size(kBootTexts) == static_cast<int>(BootText::CancelButton) + 1);

}  // namespace

QString bootText(BootText id, UiLanguage language) {
    return lookUp(kBootTexts, static_cast<int>(id), language);
}

}  // namespace l10n
