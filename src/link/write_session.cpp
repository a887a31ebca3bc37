#include "link/write_session.h"

#include <variant>

#include "l10n/error_texts.h"
#include "l10n/safe_write_texts.h"
#include "link/link_transport.h"
#include "link/memory_image.h"
#include "link/protocol.h"
#include "link/record_check.h"
#include "link/requests.h"
#include "link/session_view.h"
#include "model/editing.h"
#include "model/frequency.h"
#include "persistence/backup_folder.h"
#include "platform/prompts.h"

using l10n::MessageId;
using l10n::SafeWriteText;

namespace {

// Where a record starts in a "W" or "X" frame: command, length, block, sub. A checksum ends it.
constexpr int kRecordStart = 4;
constexpr int kSettingsBytesCompared = 3;  // S3 is not read back

}  // namespace

WriteSession::WriteSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts,
                           SessionView& view, QObject* parent)
    : WriteSession(transport, doc, prompts, view, SafeWriteOptions{}, parent) {}

WriteSession::WriteSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts,
                           SessionView& view, SafeWriteOptions options, QObject* parent)
    : RadioSession(transport, doc, prompts, view, parent),
      options_(std::move(options)),
      reader_(transport) {}

int WriteSession::progressGoal(const SafeWriteOptions& options) {
    const int passes = 1 + (options.backup ? 1 : 0) + (options.verify ? 1 : 0);
    return passes * (kSlotCount + 1) * kProgressPerRecord;
}

std::optional<Notice> WriteSession::checkEmptyFrequencies(const Codeplug& doc) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const ChannelRecord& ch = doc.plan[slot];
        if (ch.rxfreq.isEmpty() || ch.txfreq.isEmpty()) {
            return Notice{MessageId::MsgChannelFreqError, slot + 1};
        }
    }
    return std::nullopt;
}

std::optional<Notice> WriteSession::checkFrequencies(const Codeplug& doc) {
    for (const ChannelRecord& ch : doc.plan) {
        if (ch.rxfreq.size() > kMaxFrequencyLength || ch.txfreq.size() > kMaxFrequencyLength) {
            return Notice{MessageId::MsgChannelFreqError, 0};
        }
    }
    // Only the receive frequency is checked, and the band's upper end itself passes.
    const BandLimits band = doc.bandLimits();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const double rx = numericValue(doc.plan[slot].rxfreq);
        if (rx < band.lower || rx > band.upper()) {
            return Notice{MessageId::MsgChannelFreqError, slot + 1};
        }
    }
    return std::nullopt;
}

std::optional<Notice> WriteSession::checkEncodable(const Codeplug& doc) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const Result<QByteArray> frame = encode_channel(doc, slot);
        if (!frame) return noticeOf(frame.error());
    }
    return std::nullopt;
}

bool WriteSession::start() {
    if (isRunning()) return false;
    // Every slot goes to the radio, active or not, so every slot must hold a valid pair.
    // Empty cells are looked for before the redraw, which would write "000.00000" into them
    // and let an empty transmit frequency through to the encoder.
    std::optional<Notice> fault = checkEmptyFrequencies(doc_);
    if (!fault) {
        // The selectors are views of the document's settings, so there is nothing to take
        // over from them before the settings record is built.
        RESET_TEXT(doc_);
        fault = checkFrequencies(doc_);
    }
    if (!fault) fault = checkEncodable(doc_);
    if (fault) {
        prompts_.showMessage(warningBox(noticeText(*fault, doc_.language), doc_.language));
        return false;
    }
    if (!claimLink()) return false;
    plan_ = doc_;
    transport_.startReceiving();
    view_.pauseStatusTimers();
    view_.setSessionButtonsEnabled(false);
    view_.showProgress(l10n::serviceCaption(l10n::SvcWriteToRadio, language_));
    view_.setProgressGoal(progressGoal(options_));
    status(MessageId::MsgWriting);
    if (options_.backup) {
        step_ = Step::Backup;
        reader_.start([this] { advanceProgress(kProgressPerRecord); },
                      [this](const std::optional<RecordReadStop>& stop) { backupRead(stop); });
    } else {
        startWriting();
    }
    return true;
}

void WriteSession::startWriting() {
    step_ = Step::Opening;
    sendSettings();
}

QString WriteSession::whyStopped(const RecordReadStop& stop) const {
    if (stop.failure.kind == LinkFailure::PortLost) {
        return l10n::safeWriteText(SafeWriteText::PortLost, language_).arg(stop.failure.detail);
    }
    if (stop.channel == 0) return l10n::safeWriteText(SafeWriteText::NoAnswerSettings, language_);
    return l10n::safeWriteText(SafeWriteText::NoAnswerChannel, language_).arg(stop.channel);
}

void WriteSession::backupRead(const std::optional<RecordReadStop>& stop) {
    if (stop) {
        failWith(
            l10n::safeWriteText(SafeWriteText::BackupReadFailed, language_).arg(whyStopped(*stop)),
            SessionOutcome::TimedOut);
        return;
    }
    // The radio's plan, decoded in a copy of the document so that the band and the code
    // tables it is read with are the document's.
    Codeplug radioPlan = plan_;
    const QList<int> unread = decode_records(radioPlan, reader_.records());
    const QDateTime now = QDateTime::currentDateTime();
    const Result<QString> saved =
        saveBackup(radioPlan, options_.backupFolder, now, options_.portName);
    if (!saved) {
        failWith(l10n::safeWriteText(SafeWriteText::BackupNotSaved, language_)
                     .arg(l10n::describeError(saved.error(), language_)),
                 SessionOutcome::Failed);
        return;
    }
    pruneBackups(options_.backupFolder, now);
    Q_EMIT backupSaved(*saved, unread);
    startWriting();
}

void WriteSession::verifyRead(const std::optional<RecordReadStop>& stop) {
    if (stop) {
        failWith(
            l10n::safeWriteText(SafeWriteText::VerifyReadFailed, language_).arg(whyStopped(*stop)),
            SessionOutcome::TimedOut);
        return;
    }
    const std::vector<RecordDifference> differences =
        compareRecords(plan_, written_, reader_.records());
    if (differences.empty()) {
        successEnd();
        return;
    }
    QStringList lines{l10n::safeWriteText(SafeWriteText::VerifyDifferent, language_)};
    lines << differenceLines(differences, language_);
    failWith(lines.join(QLatin1Char('\n')), SessionOutcome::Failed);
}

void WriteSession::failWith(const QString& text, SessionOutcome outcome) {
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgWriteFailed);
    prompts_.showMessage(warningBox(text, language_));
    finish(outcome);
}

void WriteSession::cancel() {
    if (step_ == Step::Idle) return;
    step_ = Step::Idle;
    reader_.stop();
    progressWindowClosed();
    prompts_.showMessage(
        warningBox(l10n::message(MessageId::MsgWriteCheckInput, language_), language_));
    status(MessageId::MsgWriteFailed);
    view_.hideProgress();
    view_.setSessionButtonsEnabled(true);
    finish(SessionOutcome::Cancelled);
}

void WriteSession::sendSettings() {
    const QByteArray frame = encode_settings(plan_);
    written_.settings = frame.mid(kRecordStart, kSettingsBytesCompared);
    transport_.request(frame, kReplyMs, kSettingsAttempts, {protocol::kAcknowledgeLength});
}

void WriteSession::sendChannel() {
    const auto frame = encode_channel(plan_, channel_);
    if (!frame) {
        errorEnd();
        return;
    }
    written_.channels[static_cast<size_t>(channel_)] =
        frame->mid(kRecordStart, frame->size() - kRecordStart - 1);
    transport_.request(*frame, kReplyMs, kChannelAttempts, {protocol::kAcknowledgeLength});
}

void WriteSession::replyReceived(const QByteArray& payload) {
    if (reading()) {
        reader_.replyReceived(payload);
        return;
    }
    // An empty frame acknowledges; its command byte does not matter.
    switch (step_) {
        case Step::Opening:
            advanceProgress(kProgressPerRecord);
            step_ = Step::Channels;
            channel_ = 0;
            sendChannel();
            return;
        case Step::Channels:
            advanceProgress(kProgressPerRecord);
            if (++channel_ < kSlotCount) {
                sendChannel();
            } else {
                finish_write();
            }
            return;
        case Step::Backup:
        case Step::Verify:
        case Step::Finishing:
        case Step::Idle:
            return;
    }
}

void WriteSession::exchangeFailed(const LinkFailure& failure) {
    if (reading()) {
        reader_.exchangeFailed(failure);
        return;
    }
    if (step_ == Step::Idle) return;
    // No "E" follows a failed write.
    step_ = Step::Idle;
    presentLinkFailure();
    finish(SessionOutcome::TimedOut);
}

void WriteSession::finish_write() {
    step_ = Step::Finishing;
    transport_.send_uart(endWriteRequest());
}

void WriteSession::sendFinished() {
    if (step_ != Step::Finishing) return;
    if (options_.verify) {
        step_ = Step::Verify;
        reader_.start([this] { advanceProgress(kProgressPerRecord); },
                      [this](const std::optional<RecordReadStop>& stop) { verifyRead(stop); });
        return;
    }
    successEnd();
}

void WriteSession::successEnd() {
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgWriteDone);
    box(MessageId::MsgWriteDone, MessageId::MsgWriteDone);
    finish(SessionOutcome::Succeeded);
}

void WriteSession::errorEnd() {
    step_ = Step::Idle;
    end_session();
    status(MessageId::MsgLinkFailed);
    box(MessageId::MsgLinkFailed, std::nullopt);
    finish(SessionOutcome::Failed);
}
