#include "l10n/session_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of SessionText.
const TextPair kSessionTexts[] = {
    {"以下信道未能读入，保留原来的内容：",
     "These channels could not be read and keep their previous contents:"},
    {"信道%1：对讲机回复的长度不对（%2 字节）",
     "channel %1: the radio's reply had the wrong length (%2 bytes)"},
    {"信道%1：对讲机回复的信道数据无法识别",
     "channel %1: the radio's channel record cannot be read"},
    {"串口通讯记录到文件…", "Trace to file…"},
};

static_assert(std::size(kSessionTexts) == static_cast<int>(SessionText::TraceMenuItem) + 1);

}  // namespace

QString sessionText(SessionText id, UiLanguage language) {
    return lookUp(kSessionTexts, static_cast<int>(id), language);
}

}  // namespace l10n
