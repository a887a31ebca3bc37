#include "service/identity_panel.h"

#include "platform/prompts.h"
#include "service/identity.h"
#include "service/service_protocol.h"

using l10n::MessageId;

IdentityPanel::IdentityPanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

void IdentityPanel::setMark(Mark mark) {
    this->mark = mark;
    Q_EMIT markChanged(mark);
}

bool IdentityPanel::write() {
    setMark(Mark::Preparing);
    const IdentityField field = identityField(identity, language());
    if (!field.ok()) {
        setMark(Mark::Refused);
        channel_.prompts().showMessage(warningBox(field.error, language()));
        return false;
    }
    // Checked like the read, rather than left to end by time-out.
    if (!channel_.portOpen()) {
        setMark(Mark::Refused);
        return refuse(l10n::message(MessageId::MsgOpenPort, language()), {});
    }
    if (!begin()) {
        setMark(Mark::Refused);
        return false;
    }
    const quint32 sent = field.value;
    channel_.Panel_Exchange(
        ExchangeKind::Write, [sent] { return identityWriteRequest(sent); }, ReplyLengths::any(),
        [this, sent](const ServiceChannel::Reply& reply) {
            if (!reply) {
                setMark(Mark::Refused);
                Set_StBar(channel_.prompts(), MessageId::MsgLinkFailed, language());
                box(l10n::message(MessageId::MsgLinkFailed, language()), {});
                finish(ServiceOutcome::Failed);
                return;
            }
            ++successes;
            identity = QString::number(nextIdentity(sent));
            setMark(Mark::Accepted);
            finish(ServiceOutcome::Succeeded);
        });
    return true;
}

bool IdentityPanel::read() {
    if (!begin()) return false;
    const bool sent = channel_.Panel_Exchange(
        ExchangeKind::Read, [] { return identityReadRequest(); }, {service::kIdentitySize},
        [this](const ServiceChannel::Reply& reply) {
            const std::optional<quint32> read = reply ? decodeIdentity(*reply) : std::nullopt;
            if (!read) {
                box(l10n::message(MessageId::MsgServiceReadTimeout, language()), {});
                finish(ServiceOutcome::Failed);
                return;
            }
            identity = QString::number(*read);
            box(l10n::message(MessageId::MsgServiceReadOk, language()), {});
            setMark(Mark::Accepted);
            finish(ServiceOutcome::Succeeded);
        });
    if (!sent) finish(ServiceOutcome::Refused);
    return sent;
}
