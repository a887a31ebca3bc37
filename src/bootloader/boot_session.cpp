#include "bootloader/boot_session.h"

#include "bootloader/boot_frames.h"
#include "l10n/program_texts.h"
#include "link/link_transport.h"
#include "platform/serial_port.h"

using l10n::BootText;

namespace {

constexpr auto kImmediate = LinkTransport::SendStyle::Immediate;
// The loader window advances its bar by one every L / 12800 blocks.
constexpr double kBytesPerProgressStep = 12800.0;

QString hex(int value, int digits) {
    return QStringLiteral("0x%1").arg(value, digits, 16, QLatin1Char('0'));
}

}  // namespace

BootSession::BootSession(LinkTransport& transport, UiLanguage language, QObject* parent)
    : QObject(parent), transport_(transport), language_(language) {}

BootSession::~BootSession() {
    transport_.release(this);
}

bool BootSession::start(const Job& job) {
    if (isRunning()) return false;
    job_ = job;
    verifying_ = false;
    data_.clear();

    if (job.operation == Operation::Write) {
        if (job.imagePath.isEmpty()) return refuse(BootText::NoImageFile);
        log(l10n::bootText(BootText::ImageFile, language_) + job.imagePath);
        if (job.image.size() > boot::kMemorySize) return refuse(BootText::ImageTooLarge);
        if (job.image.isEmpty()) return refuse(BootText::ImageEmpty);
    }
    const auto rangeFault = job.operation == Operation::Read
                                ? boot::checkReadRange(job.start, job.end)
                                : boot::checkEraseRange(job.start, job.end);
    if (rangeFault) return refuse(*rangeFault);
    const int rangeLength = job.end - job.start + 1;
    if (job.operation == Operation::Read && rangeLength > boot::kMemorySize) {
        return refuse(BootText::LengthError);
    }
    if (job.operation == Operation::Write && job.image.size() > rangeLength) {
        // Erasing first and dropping the tail would leave a radio that half runs.
        log(l10n::bootText(BootText::ImageLongerThanRange, language_)
                .arg(job.image.size())
                .arg(rangeLength));
        end(Outcome::Failed);
        return false;
    }
    if (!transport_.port().isOpen()) return refuse(BootText::PortClosed);
    if (!transport_.acquire(this)) {
        log(l10n::programText(l10n::ProgramText::LinkBusy, language_));
        end(Outcome::Failed);
        return false;
    }

    transport_.startReceiving();
    step_ = Step::Linking;
    log(BootText::LinkWait);
    transport_.request(boot::request(boot::kLink, 0), boot::kLinkReplyMs, boot::kLinkAttempts,
                       ReplyLengths::any(), kImmediate);
    return true;
}

void BootSession::cancel() {
    if (!isRunning()) return;
    transport_.abort();
    log(BootText::Cancelled);
    end(Outcome::Cancelled);
}

void BootSession::attemptTimedOut(int attempt) {
    if (step_ == Step::Linking) Q_EMIT linkWaiting(attempt, boot::kLinkAttempts);
}

void BootSession::exchangeFailed(const LinkFailure&) {
    switch (step_) {
        case Step::Linking:
            fail(BootText::LinkNoAck);
            return;
        case Step::Erasing:
        case Step::StartingRead:
            fail(BootText::StartNoAck);
            return;
        case Step::Writing:
        case Step::EndingWrite:
        case Step::Reading:
        case Step::EndingRead:
            fail(BootText::NoAck);
            return;
        case Step::Idle:
            return;
    }
}

void BootSession::replyReceived(const QByteArray& payload) {
    switch (step_) {
        case Step::Linking:
            afterLink();
            return;
        case Step::Erasing:
            if (job_.operation == Operation::Erase) {
                log(BootText::EraseOk);
                end(Outcome::Succeeded);
                return;
            }
            blocks_ = boot::paddedImage(job_.image, job_.start, job_.end);
            length_ = static_cast<int>(job_.image.size());
            beginBlocks(Step::Writing);
            return;
        case Step::Writing:
            blockDone();
            // The padded image stops at the last block that starts below the end address.
            if (offset_ >= blocks_.size()) {
                Q_EMIT progressChanged(100);
                step_ = Step::EndingWrite;
                ask(boot::request(boot::kEndWrite, blockCount_), boot::kBlockReplyMs);
                return;
            }
            sendBlock();
            return;
        case Step::EndingWrite:
            log(BootText::WriteOk);
            if (!job_.verify) {
                end(Outcome::Succeeded);
                return;
            }
            verifying_ = true;
            log(BootText::VerifyStart);
            startReadBack();
            return;
        case Step::StartingRead:
            data_.clear();
            beginBlocks(Step::Reading);
            return;
        case Step::Reading:
            data_.append(payload.left(length_ - offset_));
            offset_ = static_cast<int>(data_.size());
            blockDone();
            if (offset_ < length_) {
                sendBlock();
                return;
            }
            Q_EMIT progressChanged(100);
            step_ = Step::EndingRead;
            ask(boot::request(boot::kEndRead, blockCount_), boot::kBlockReplyMs);
            return;
        case Step::EndingRead:
            finishRead();
            return;
        case Step::Idle:
            return;
    }
}

void BootSession::afterLink() {
    if (job_.operation == Operation::Read) {
        startReadBack();
        return;
    }
    log(job_.operation == Operation::Erase ? BootText::EraseStart : BootText::WriteStart);
    step_ = Step::Erasing;
    ask(boot::request(boot::kErase, boot::eraseParameter(job_.start, job_.end)),
        boot::kEraseReplyMs);
}

void BootSession::startReadBack() {
    if (!verifying_) {
        log(BootText::ReadStart);
        length_ = job_.end - job_.start + 1;
    } else {
        length_ = static_cast<int>(blocks_.size());
    }
    step_ = Step::StartingRead;
    ask(boot::request(boot::kStartRead, 0), boot::kStartReadReplyMs);
}

void BootSession::beginBlocks(Step step) {
    offset_ = blockCount_ = 0;
    progressCounter_ = progress_ = 0;
    address_ = job_.start;
    step_ = step;
    sendBlock();
}

void BootSession::sendBlock() {
    if (step_ == Step::Writing) {
        const QByteArray block = blocks_.mid(offset_, boot::kBlockSize);
        offset_ += boot::kBlockSize;
        ask(boot::request(boot::kWriteBlock, address_, block), boot::kBlockReplyMs);
    } else {
        ask(boot::request(boot::kReadBlock, address_), boot::kBlockReplyMs, {boot::kBlockSize});
    }
}

void BootSession::blockDone() {
    ++blockCount_;
    address_ += boot::kBlockSize;
    const int total = (length_ + boot::kBlockSize - 1) / boot::kBlockSize;
    Q_EMIT blocksDone(blockCount_, total);
    progressCounter_ += 1;
    if (progressCounter_ >= length_ / kBytesPerProgressStep) {
        progressCounter_ = 0;
        Q_EMIT progressChanged(++progress_);
    }
}

void BootSession::finishRead() {
    if (!verifying_) {
        log(BootText::ReadOk);
        end(Outcome::Succeeded);
        return;
    }
    for (int i = 0; i < blocks_.size(); ++i) {
        if (i >= data_.size() || data_[i] != blocks_[i]) {
            const int found = i < data_.size() ? static_cast<quint8>(data_[i]) : -1;
            log(l10n::bootText(BootText::VerifyMismatch, language_)
                    .arg(hex(job_.start + i, 4))
                    .arg(hex(static_cast<quint8>(blocks_[i]), 2))
                    .arg(found < 0 ? QStringLiteral("-") : hex(found, 2)));
            end(Outcome::Failed);
            return;
        }
    }
    const auto crc = [](const QByteArray& bytes) {
        return QStringLiteral("%1").arg(boot::crc32(bytes), 8, 16, QLatin1Char('0'));
    };
    log(l10n::bootText(BootText::VerifyOk, language_)
            .arg(crc(job_.image))
            .arg(crc(data_.left(job_.image.size()))));
    end(Outcome::Succeeded);
}

void BootSession::ask(const QByteArray& frame, int replyMs, ReplyLengths accepted) {
    // Everything but the link request gets one attempt, sent the loader's way.
    transport_.request(frame, replyMs, 1, accepted, kImmediate);
}

void BootSession::log(BootText id) {
    log(l10n::bootText(id, language_));
}

void BootSession::log(const QString& line) {
    Q_EMIT logLine(line);
}

void BootSession::fail(BootText id) {
    log(id);
    end(Outcome::Failed);
}

bool BootSession::refuse(BootText id) {
    fail(id);
    return false;
}

void BootSession::end(Outcome outcome) {
    step_ = Step::Idle;
    transport_.release(this);
    outcome_ = outcome;
    Q_EMIT finished(outcome);
}
