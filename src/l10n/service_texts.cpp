#include "l10n/service_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of ServiceText.
const TextPair kServiceTexts[] = {
    {"Clear OK!!", "Clear OK!!"},
    {"Clear出错!!", "Clear出错!!"},
    {"REG 读 OK!!", "REG 读 OK!!"},
    {"REG 读 出错!!", "REG 读 出错!!"},
    {"地址不能为空!!", "地址不能为空!!"},
    {"数据不能为空!!", "数据不能为空!!"},
    {"请检查串口!!", "请检查串口!!"},
    {"REG 写 OK!!", "REG 写 OK!!"},
    {"write ok!!", "write ok!!"},
    {"读 OK!!", "读 OK!!"},
    {"晶体修正 读 出错!!", "晶体修正 读 出错!!"},
    {"晶体修正 写 OK!!", "晶体修正 写 OK!!"},
    {"晶体修正 写 出错!!", "晶体修正 写 出错!!"},
    {"OK", "OK"},
    {"RF Reg", "RF Reg"},
    {"Reg Empty!!", "Reg Empty!!"},
    {"Reg", "Reg"},
    {"Band info", "Band info"},
    {"晶体修正", "晶体修正"},
    {"%1：“%2”不是 %3 到 %4 之间的数，没有发送任何数据",
     "%1: \"%2\" is not a number from %3 to %4; nothing was sent"},
    {"第%1行的%2", "%2 of row %1"},
    {"寄存器地址", "register address"},
    {"寄存器数据", "register data"},
    {"TX电压", "TX voltage"},
    {"RX电压", "RX voltage"},
    {"RSSI", "RSSI"},
    {"Noise窄带", "Noise Narrow"},
    {"Noise宽带", "Noise Wide"},
    {"晶体修正值", "crystal correction"},
    {"文件没有全部调入，未调入：%1", "The file was not loaded entirely; dropped: %1"},
    {"第%2行以后的 %1 行", "%1 lines after line %2"},
    {"第%1行（没有与之成对的一行）", "line %1 (it has no pair)"},
    {"对讲机回复的长度不对（%1 字节），没有采用",
     "The radio's reply had the wrong length (%1 bytes) and was not used"},
};

static_assert(std::size(kServiceTexts) == static_cast<int>(ServiceText::ReplyWrongLength) + 1);

}  // namespace

QString serviceText(ServiceText id, UiLanguage language) {
    return lookUp(kServiceTexts, static_cast<int>(id), language);
}

}  // namespace l10n
