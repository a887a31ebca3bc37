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
    {"无法写入文件", "cannot write the file"},
};

static_assert(std::size(kProgramTexts) == static_cast<int>(ProgramText::FileCannotWrite) + 1);

}  // namespace

QString programText(ProgramText id, UiLanguage language) {
    return lookUp(kProgramTexts, static_cast<int>(id), language);
}

}  // namespace l10n
