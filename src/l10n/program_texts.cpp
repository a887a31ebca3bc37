#include "l10n/program_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of ProgramText.
const TextPair kProgramTexts[] = {
    {"正在与对讲机通讯，请等当前操作结束后再试",
     "The radio link is busy with another exchange; try again when it has finished"},
    {"无法打开文件", "cannot open the file"},
    {"文件太大，不是频率文件", "too large for a codeplug file"},
    {"不是频率文件（没有可识别的内容）", "not a codeplug file (nothing in it is recognised)"},
    {"212 行的旧格式无法读取", "an old 212-line layout, which cannot be read"},
    {"无法写入 %1：%2", "cannot write %1: %2"},
    {"原因不明", "no reason given"},
    {"不是普通文件（设备、管道或套接字），没有改动",
     "not a regular file (a device, FIFO or socket); left untouched"},
    {"文件太大，无法保留其中的其他内容，没有写入",
     "too large to keep its other lines; nothing was written"},
    {"配置文件无法读取，使用默认设置：%1", "configuration not read, the defaults apply: %1"},
    {"信道自定义亚音输入错误，请重新输入", "Channel Custom Tone Input error，Please edit again"},
    {"信道自定义数字码输入错误，请重新输入", "Channel Custom DCS Input error，Please edit again"},
    {"当前用户没有使用该串口的权限：请执行 sudo usermod -aG dialout $USER，然后重新登录",
     "This user may not open the port: run sudo usermod -aG dialout $USER, then log in again"},
    {"信道的亚音 %1 不在当前模式的亚音列表中，请重新输入",
     "Channel code %1 is not in this mode's code list，Please edit again"},
};

static_assert(std::size(kProgramTexts) == static_cast<int>(ProgramText::ChannelCodeNotInList) + 1);

}  // namespace

QString programText(ProgramText id, UiLanguage language) {
    return lookUp(kProgramTexts, static_cast<int>(id), language);
}

}  // namespace l10n
