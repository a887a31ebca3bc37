#include "l10n/production_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of ProductionText.
const TextPair kProductionTexts[] = {
    {"测试模式 写 OK!!", "测试模式 写 OK!!"},
    {"测试模式 写 出错!!", "测试模式 写 出错!!"},
    {"测试模式选择", "测试模式选择"},
    {"监测已停止（通信口另有用途或已断开），按 start 重新开始",
     "Monitor stopped (the link was needed elsewhere or lost); press start to watch again"},
};

static_assert(std::size(kProductionTexts) == static_cast<int>(ProductionText::MonitorEnded) + 1);

}  // namespace

QString productionText(ProductionText id, UiLanguage language) {
    return lookUp(kProductionTexts, static_cast<int>(id), language);
}

}  // namespace l10n
