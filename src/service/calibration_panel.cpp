#include "service/calibration_panel.h"

#include "platform/prompts.h"
#include "service/service_protocol.h"

using l10n::MessageId;
using l10n::ServiceText;

CalibrationPanel::CalibrationPanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

void CalibrationPanel::messageBox(MessageId text, const QString& title) {
    box(l10n::message(text, language()), title);
}

bool CalibrationPanel::read() {
    if (!begin()) return false;
    const bool sent = channel_.Panel_Exchange(
        ExchangeKind::Read, [] { return calibrationReadRequest(); },
        {service::kCalibrationRecordSize},
        [this](const ServiceChannel::Reply& reply) {
            if (!reply) {
                messageBox(MessageId::MsgServiceReadTimeout);
                finish(ServiceOutcome::Failed);
                return;
            }
            decodeCalibration(*reply, &values);
            messageBox(MessageId::MsgServiceReadOk);
            finish(ServiceOutcome::Succeeded);
        });
    if (!sent) finish(ServiceOutcome::Refused);
    return sent;
}

bool CalibrationPanel::write() {
    // Checked with the selectors the exchange will use.
    const CalibrationWrite request = calibrationWriteRequest(values, 0, 0, language());
    if (!request.ok())
        return refuse(request.error, l10n::message(MessageId::MsgAdjust, language()));
    if (!begin()) return false;
    channel_.Panel_Exchange(
        ExchangeKind::Write, [request] { return request.frame; }, ReplyLengths::any(),
        [this](const ServiceChannel::Reply& reply) {
            if (!reply) {
                Set_StBar(channel_.prompts(), MessageId::MsgLinkFailed, language());
                messageBox(MessageId::MsgLinkFailed);
                finish(ServiceOutcome::Failed);
                return;
            }
            box(text(ServiceText::CalibrationWriteOk),
                l10n::message(MessageId::MsgAdjust, language()));
            finish(ServiceOutcome::Succeeded);
        });
    return true;
}

bool CalibrationPanel::readVersion() {
    if (!begin()) return false;
    version.clear();
    channel_.init_send_str();
    send(pack_pc_cmd(service::kVersionRead, channel_.selectors), AttemptCount::Inherited,
         ReplyLengths::any(), [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::RegReadFailed, ServiceText::TitleRfReg);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             version = versionLines(*reply);
             box(version.join(QLatin1Char('\n')), {});
             finish(ServiceOutcome::Succeeded);
         });
    return true;
}
