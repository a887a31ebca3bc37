#include "service/crystal_panel.h"

#include "service/crystal.h"
#include "service/service_protocol.h"

using l10n::ServiceText;

CrystalPanel::CrystalPanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

bool CrystalPanel::read() {
    if (!begin()) return false;
    channel_.selectors = {};
    send(crystalReadRequest(channel_.selectors), AttemptCount::Inherited,
         {service::kCrystalReplySize}, [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::CrystalReadFailed, ServiceText::TitleCrystal);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             value = QString::number(decodeCrystal(*reply));
             box(ServiceText::CrystalReadOk, ServiceText::TitleCrystal);
             finish(ServiceOutcome::Succeeded);
         });
    return true;
}

bool CrystalPanel::write() {
    // The selectors are left from the previous request (0 after a read).
    const CrystalWrite request = crystalWriteRequest(value, channel_.selectors, language());
    if (!request.ok()) return refuse(request.error, text(ServiceText::TitleCrystal));
    if (!begin()) return false;
    send(request.frame, AttemptCount::Inherited, ReplyLengths::any(),
         [this](const ServiceChannel::Reply& reply) {
             box(reply ? ServiceText::CrystalWriteOk : ServiceText::CrystalWriteFailed,
                 ServiceText::TitleCrystal);
             finish(reply ? ServiceOutcome::Succeeded : ServiceOutcome::Failed);
         });
    return true;
}
