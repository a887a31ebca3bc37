#include "link/record_reader.h"

#include "link/link_transport.h"
#include "link/memory_image.h"
#include "link/protocol.h"
#include "link/read_session.h"
#include "link/requests.h"
#include "model/editing.h"

namespace {
// The settings reply carries S3 too, but the radio does not keep it.
constexpr int kSettingsBytesKept = 3;
}  // namespace

void RecordReader::start(Progress progress, Done done) {
    progress_ = std::move(progress);
    done_ = std::move(done);
    records_ = {};
    next_ = 0;
    requestNext();
}

void RecordReader::requestNext() {
    if (next_ == 0) {
        transport_.request(readSettingsRequest(), ReadSession::kOpeningReplyMs,
                           ReadSession::kOpeningAttempts, {protocol::kSettingsRecordSize});
        return;
    }
    transport_.request(readChannelRequest(next_ - 1), ReadSession::kChannelReplyMs,
                       ReadSession::kChannelAttempts,
                       {protocol::kShortChannelRecord, protocol::kLongChannelRecord});
}

void RecordReader::replyReceived(const QByteArray& payload) {
    if (!isRunning()) return;
    if (next_ == 0) {
        records_.settings = payload.left(kSettingsBytesKept);
    } else {
        records_.channels[static_cast<size_t>(next_ - 1)] = payload;
    }
    if (progress_) progress_();
    if (++next_ <= kSlotCount) {
        requestNext();
        return;
    }
    next_ = -1;
    done_(std::nullopt);
}

void RecordReader::exchangeFailed(const LinkFailure& failure) {
    if (!isRunning()) return;
    const int channel = next_;
    next_ = -1;
    done_(RecordReadStop{channel, failure});
}

QList<int> decode_records(Codeplug& doc, const RadioRecords& records) {
    decode_settings(doc, records.settings);
    QList<int> unread;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        if (!decode_channel(doc, slot, records.channels[static_cast<size_t>(slot)])) {
            doc.plan[slot] = ChannelRecord{};
            unread << slot + 1;
        }
    }
    RESET_TEXT(doc);
    return unread;
}
