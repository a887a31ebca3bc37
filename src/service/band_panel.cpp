#include "service/band_panel.h"

#include "service/service_protocol.h"

using l10n::ServiceText;

namespace {

// A segment is 20 bytes; a read uses the first 15, so a radio that sends only those is heard.
const ReplyLengths kSegmentReply{15, 16, 17, 18, 19, 20};

}  // namespace

BandPanel::BandPanel(ServiceChannel& channel, QObject* parent) : ServicePanel(channel, parent) {}

bool BandPanel::read() {
    if (!begin()) return false;
    segment_ = 0;
    readSegment();
    return true;
}

void BandPanel::readSegment() {
    // The sub byte is whatever the previous request left.
    channel_.selectors.RequestBlock = segment_;
    send(pack_pc_cmd(service::kBandRead, channel_.selectors), AttemptCount::Inherited,
         kSegmentReply, [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::RegReadFailed, ServiceText::TitleRfReg);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             applyBandSegment(&table, segment_, *reply);
             if (++segment_ < service::kBandSegments) {
                 readSegment();
                 return;
             }
             box(ServiceText::RegReadOk, ServiceText::TitleRfReg);
             finish(ServiceOutcome::Succeeded);
         });
}

bool BandPanel::write() {
    for (int segment = 0; segment < service::kBandSegments; ++segment) {
        const BandSegment data = bandSegmentData(table, segment, language());
        if (!data.ok()) return refuse(data.error, text(ServiceText::TitleBandInfo));
        toSend_[static_cast<size_t>(segment)] = data.data;
    }
    if (!begin()) return false;
    segment_ = 0;
    writeSegment();
    return true;
}

void BandPanel::writeSegment() {
    channel_.selectors.RequestBlock = segment_;
    send(bandWriteRequest(channel_.selectors, toSend_[static_cast<size_t>(segment_)]),
         AttemptCount::Inherited, ReplyLengths::any(), [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::RegReadFailed, ServiceText::TitleBandInfo);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             if (++segment_ < service::kBandSegments) {
                 writeSegment();
                 return;
             }
             box(ServiceText::BandWriteOk, ServiceText::TitleBandInfo);
             finish(ServiceOutcome::Succeeded);
         });
}

bool BandPanel::adjust(const QString& txLow, const QString& txHigh, const QString& rssiLow,
                       const QString& rssiHigh) {
    adjustBand(&table, txLow, txHigh, rssiLow, rssiHigh);
    return write();
}

bool BandPanel::restoreDefaults() {
    if (!begin()) return false;
    send(pack_pc_cmd(service::kBandDefaults, channel_.selectors), AttemptCount::Inherited,
         ReplyLengths::any(), [this](const ServiceChannel::Reply& reply) {
             box(reply ? ServiceText::ClearOk : ServiceText::ClearFailed, ServiceText::TitleRfReg);
             finish(reply ? ServiceOutcome::Succeeded : ServiceOutcome::Failed);
         });
    return true;
}
