#include "sim/sim_radio.h"

#include <algorithm>

#include "link/frame.h"
#include "link/protocol.h"
#include "service/service_protocol.h"
#include "sim/sim_memory.h"

namespace {

using namespace protocol;

constexpr int kNoiseIntervalMs = 10;
const QString kMonitorNote = QStringLiteral("monitor");

// No parser can take these: outside the reply command range, and a frame start whose length
// is too large.
const QByteArray kGarbage = QByteArray::fromHex("00ff3c497f41ff");

int byteAt(const QByteArray& bytes, int at) {
    return at < bytes.size() ? static_cast<quint8>(bytes[at]) : -1;
}

// The program writes a custom DCS code as code byte 162 with both inversion flags clear; the
// radio reports it back as the last entry of the professional list, 162 with its direction's
// inversion flag.
QByteArray asReported(QByteArray record) {
    if (record.size() <= kFlags) return record;
    if (byteAt(record, kRxCode) == kCdcssMarker) record[kFlags] = record[kFlags] | kRxInverted;
    if (byteAt(record, kTxCode) == kCdcssMarker) record[kFlags] = record[kFlags] | kTxInverted;
    return record;
}

}  // namespace

SimRadio::SimRadio(Clock& clock)
    : clock_(clock),
      settings_(initialSettingsRecord()),
      production_(clock,
                  [this](const QByteArray& payload) {
                      queue(LinkFrame{kRecordReply, payload}.encode(), kMonitorNote);
                  }),
      replyTimer_(clock.createTimer()),
      noiseTimer_(clock.createTimer()) {
    for (int slot = 0; slot < kChannelCount; ++slot) {
        channels_[static_cast<size_t>(slot)] = initialChannelRecord(slot);
    }
    replyTimer_->setCallback([this] { sendDue(); });
    noiseTimer_->setCallback([this] { sendNoise(); });
}

void SimRadio::setFaults(const SimFaults& faults) {
    faults_ = faults;
    if (faults_.noise && !noiseTimer_->isActive()) noiseTimer_->start(kNoiseIntervalMs);
    if (!faults_.noise) noiseTimer_->stop();
}

void SimRadio::sendNoise() {
    if (hungUp_) return;
    // About what a 9600-baud line carries, from a small xorshift generator.
    QByteArray bytes(kNoiseIntervalMs, '\0');
    for (char& byte : bytes) {
        noiseState_ ^= noiseState_ << 13;
        noiseState_ ^= noiseState_ >> 17;
        noiseState_ ^= noiseState_ << 5;
        byte = static_cast<char>(noiseState_ & 0xFF);
    }
    if (transmit_) transmit_(bytes);
    noiseTimer_->start(kNoiseIntervalMs);
}

SimRadio::~SimRadio() = default;

void SimRadio::receive(const QByteArray& bytes) {
    for (char byte : bytes) {
        if (hungUp_) return;
        feed(static_cast<quint8>(byte));
    }
}

void SimRadio::feed(quint8 byte) {
    const qint64 now = clock_.nowMs();
    if (!request_.isEmpty() && now - lastByteMs_ > kInterByteTimeoutMs) {
        note(TraceKind::Dropped, request_, QStringLiteral("incomplete"));
        request_.clear();
    }
    lastByteMs_ = now;
    request_.append(static_cast<char>(byte));

    if (request_.size() < 2) return;
    const int length = byteAt(request_, 1);
    if (length > LinkFrame::kMaxReplyPayload) {
        note(TraceKind::Dropped, request_, QStringLiteral("length"));
        request_.clear();
        return;
    }
    if (request_.size() < length + 3) return;

    const QByteArray frame = request_;
    request_.clear();
    const auto command = static_cast<quint8>(frame[0]);
    const QByteArray payload = frame.mid(2, length);
    if (LinkFrame::checksum(command, payload) != static_cast<quint8>(frame.back())) {
        note(TraceKind::Dropped, frame, QStringLiteral("checksum"));
        return;
    }
    note(TraceKind::Request, frame);
    handleRequest(command, payload);
}

void SimRadio::handleRequest(quint8 command, const QByteArray& payload) {
    const int request = ++requestCount_;
    if (faults_.hangUpAt == request) {
        hungUp_ = true;
        pending_.clear();
        replyTimer_->stop();
        noiseTimer_->stop();
        note(TraceKind::HangUp, {});
        if (hangUp_) hangUp_();
        return;
    }
    // A request the radio does not hear changes nothing.
    if (faults_.silentFor(request)) return;
    if (command != service::kMonitor) {
        production_.interrupt();
        dropStaleMeasurements();
    }

    if (SimBootloader::handles(command)) {
        if (const auto answer = bootloader_.handle(command, payload, faults_)) {
            reply(answer->payload.isEmpty() ? kAcknowledge : kRecordReply, answer->payload,
                  answer->delayMs);
        }
        return;
    }

    const int block = byteAt(payload, 0);
    const int size = static_cast<int>(payload.size());
    const int recordSize = size - kAddressBytes;
    switch (command) {
        case kReadSettings:
            if (size == 3) reply(kRecordReply, settings_);
            break;
        case kReadChannel:
            if (size == 3 && block < kChannelCount) {
                reply(kRecordReply, asReported(channels_[static_cast<size_t>(block)]));
            }
            break;
        case kWriteSettings:
            if (recordSize == kSettingsRecordSize) {
                settings_ = payload.mid(kAddressBytes);
                reply(kAcknowledge, {});
            }
            break;
        case kWriteChannel:
            if (block < kChannelCount &&
                (recordSize == kShortChannelRecord || recordSize == kLongChannelRecord)) {
                channels_[static_cast<size_t>(block)] = payload.mid(kAddressBytes);
                reply(kAcknowledge, {});
            }
            break;
        case kEndWrite:
            programmingEnded_ = true;
            corruptStoredByte();
            break;
        default:
            answerService(command, payload);
            break;
    }
}

void SimRadio::corruptStoredByte() {
    if (faults_.corruptChannel < 1 || faults_.corruptChannel > kChannelCount) return;
    QByteArray& record = channels_[static_cast<size_t>(faults_.corruptChannel - 1)];
    if (faults_.corruptOffset < 0 || faults_.corruptOffset >= record.size()) return;
    record[faults_.corruptOffset] = static_cast<char>(record[faults_.corruptOffset] ^ 0x01);
}

void SimRadio::reply(quint8 command, const QByteArray& payload, int extraDelayMs) {
    const int request = requestCount_;
    QByteArray body = payload;
    QString faults;
    if (faults_.wrongLength.contains(request)) {
        body.append('\0');
        faults += QStringLiteral(" wrong-length");
    }
    QByteArray bytes = LinkFrame{command, body}.encode();
    if (faults_.badChecksum.contains(request)) {
        bytes.back() = static_cast<char>(bytes.back() + 1);
        faults += QStringLiteral(" bad-checksum");
    }
    if (faults_.cutFrame.contains(request)) {
        bytes.truncate(1);
        faults += QStringLiteral(" cut");
    }
    if (faults_.garbage.contains(request)) {
        bytes.prepend(kGarbage);
        faults += QStringLiteral(" garbage");
    }
    queue(bytes, faults.trimmed(), extraDelayMs);
}

void SimRadio::answerService(quint8 command, const QByteArray& payload) {
    std::optional<SimService::Answer> answer = production_.answer(command, payload);
    dropStaleMeasurements();
    if (!answer) answer = service_.answer(command, payload);
    if (!answer) return;
    switch (answer->kind) {
        case SimService::Answer::Record:
            reply(kRecordReply, answer->bytes);
            return;
        case SimService::Answer::Acknowledge:
            reply(kAcknowledge, {});
            return;
        case SimService::Answer::Text:
            // Text lines are not frames: of the reply faults only the silence applies.
            queue(answer->bytes, {});
            return;
    }
}

void SimRadio::dropStaleMeasurements() {
    if (production_.monitorMode() != 0) return;
    // Measurements not yet on the line stay unsent once the monitor has ended.
    pending_.erase(std::remove_if(pending_.begin(), pending_.end(),
                                  [](const PendingReply& p) { return p.note == kMonitorNote; }),
                   pending_.end());
}

void SimRadio::queue(const QByteArray& bytes, const QString& note, int extraDelayMs) {
    const int delayMs = latencyMs_ + extraDelayMs;
    pending_.push_back({clock_.nowMs() + delayMs, bytes, note});
    if (!replyTimer_->isActive()) replyTimer_->start(delayMs);
}

void SimRadio::sendDue() {
    while (!pending_.empty() && pending_.front().dueMs <= clock_.nowMs()) {
        const PendingReply next = pending_.front();
        pending_.pop_front();
        note(TraceKind::Reply, next.bytes, next.note);
        if (transmit_) transmit_(next.bytes);
    }
    if (!pending_.empty()) {
        replyTimer_->start(static_cast<int>(pending_.front().dueMs - clock_.nowMs()));
    }
}

void SimRadio::note(TraceKind kind, const QByteArray& bytes, const QString& text) {
    if (trace_) trace_(kind, bytes, text);
}
