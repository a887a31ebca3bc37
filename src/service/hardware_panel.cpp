#include "service/hardware_panel.h"

#include "l10n/board_texts.h"
#include "service/service_protocol.h"

using l10n::BoardText;
using l10n::boardText;

HardwarePanel::HardwarePanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

bool HardwarePanel::read() {
    if (!begin()) return false;
    channel_.selectors = {};
    send(hardwareReadRequest(channel_.selectors), AttemptCount::Inherited,
         ReplyLengths::atLeast(service::kHardwareReplySize),
         [this](const ServiceChannel::Reply& reply) {
             const QString title = boardText(BoardText::TitleHardware, language());
             if (!reply) {
                 box(boardText(BoardText::HardwareReadFailed, language()), title);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             options = decodeHardware(*reply);
             box(boardText(BoardText::HardwareReadOk, language()), title);
             finish(ServiceOutcome::Succeeded);
         });
    return true;
}

bool HardwarePanel::write() {
    const QString title = boardText(BoardText::TitleHardware, language());
    const HardwareWrite request = hardwareWriteRequest(options, {}, language());
    if (!request.ok()) return refuse(request.error, title);
    if (!begin()) return false;
    channel_.selectors = {};
    send(request.frame, AttemptCount::Inherited, ReplyLengths::any(),
         [this, title](const ServiceChannel::Reply& reply) {
             box(boardText(reply ? BoardText::HardwareWriteOk : BoardText::HardwareWriteFailed,
                           language()),
                 title);
             finish(reply ? ServiceOutcome::Succeeded : ServiceOutcome::Failed);
         });
    return true;
}
