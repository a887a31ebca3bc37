#include "l10n/board_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of BoardText.
const TextPair kBoardTexts[] = {
    {"硬件选择 读 OK!!", "硬件选择 读 OK!!"},
    {"硬件选择 读 出错!!", "硬件选择 读 出错!!"},
    {"硬件选择 写 OK!!", "硬件选择 写 OK!!"},
    {"硬件选择 写 出错!!", "硬件选择 写 出错!!"},
    {"硬件选择", "硬件选择"},
    {"Mp3 OK!!", "Mp3 OK!!"},
    {"Mp3 读 出错!!", "Mp3 读 出错!!"},
    {"Mp3 写 OK!!", "Mp3 写 OK!!"},
    {"Mp3 写 出错!!", "Mp3 写 出错!!"},
    {"Mp3", "Mp3"},
    {"OK", "OK"},
    {"%1：“%2”不在可选项（%3）之中，没有发送任何数据",
     "%1: \"%2\" is not one of %3; nothing was sent"},
    {"%1：请从 %2 中选一个门槛，没有发送任何数据",
     "%1: choose a threshold from %2; nothing was sent"},
};

static_assert(std::size(kBoardTexts) == static_cast<int>(BoardText::NoThreshold) + 1);

}  // namespace

QString boardText(BoardText id, UiLanguage language) {
    return lookUp(kBoardTexts, static_cast<int>(id), language);
}

}  // namespace l10n
