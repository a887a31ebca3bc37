#include "service/volume_panels.h"

#include "l10n/board_texts.h"
#include "platform/prompts.h"

using l10n::BoardText;
using l10n::MessageId;

VolumePanel::VolumePanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

bool VolumePanel::read() {
    if (!begin()) return false;
    const bool sent = channel_.Panel_Exchange(
        ExchangeKind::Read, [] { return levelReadRequest(LevelTable::Volume, {}); },
        ReplyLengths::atLeast(levelRecordSize(LevelTable::Volume)),
        [this](const ServiceChannel::Reply& reply) {
            if (!reply) {
                box(l10n::message(MessageId::MsgServiceReadTimeout, language()), {});
                finish(ServiceOutcome::Failed);
                return;
            }
            decodeLevels(*reply, &values);
            box(l10n::message(MessageId::MsgServiceReadOk, language()), {});
            finish(ServiceOutcome::Succeeded);
        });
    if (!sent) finish(ServiceOutcome::Refused);
    return sent;
}

bool VolumePanel::write() {
    // The exchange puts both selectors to 0 before it builds.
    const LevelWrite request = levelWriteRequest(values, {}, language());
    const QString title = l10n::message(MessageId::MsgAdjust, language());
    if (!request.ok()) return refuse(request.error, title);
    if (!begin()) return false;
    channel_.Panel_Exchange(
        ExchangeKind::Write, [request] { return request.frame; }, ReplyLengths::any(),
        [this, title](const ServiceChannel::Reply& reply) {
            if (!reply) {
                Set_StBar(channel_.prompts(), MessageId::MsgLinkFailed, language());
                box(l10n::message(MessageId::MsgLinkFailed, language()), {});
                finish(ServiceOutcome::Failed);
                return;
            }
            box(l10n::boardText(BoardText::VolumeWriteOk, language()), title);
            finish(ServiceOutcome::Succeeded);
        });
    return true;
}

PlayerPanel::PlayerPanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

bool PlayerPanel::read() {
    if (!begin()) return false;
    channel_.selectors = {};
    send(levelReadRequest(LevelTable::Player, channel_.selectors), AttemptCount::Inherited,
         ReplyLengths::atLeast(levelRecordSize(LevelTable::Player)),
         [this](const ServiceChannel::Reply& reply) {
             const QString title = l10n::boardText(BoardText::TitlePlayer, language());
             if (!reply) {
                 box(l10n::boardText(BoardText::PlayerReadFailed, language()), title);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             decodeLevels(*reply, &values);
             box(l10n::boardText(BoardText::PlayerReadOk, language()), title);
             finish(ServiceOutcome::Succeeded);
         });
    return true;
}

bool PlayerPanel::write() {
    const QString title = l10n::boardText(BoardText::TitlePlayer, language());
    const LevelWrite request = levelWriteRequest(values, channel_.selectors, language());
    if (!request.ok()) return refuse(request.error, title);
    if (!begin()) return false;
    send(request.frame, AttemptCount::Inherited, ReplyLengths::any(),
         [this, title](const ServiceChannel::Reply& reply) {
             box(l10n::boardText(reply ? BoardText::PlayerWriteOk : BoardText::PlayerWriteFailed,
                                 language()),
                 title);
             finish(reply ? ServiceOutcome::Succeeded : ServiceOutcome::Failed);
         });
    return true;
}
