#include "link/link_messages.h"

QString linkBusyMessage(UiLanguage language) {
    return language == UiLanguage::English
               ? QStringLiteral(
                     "The radio link is busy with another exchange; try again when it "
                     "has finished")
               : QStringLiteral("正在与对讲机通讯，请等当前操作结束后再试");
}
