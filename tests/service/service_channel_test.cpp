// The service exchanges on the manual clock: attempts, what ends a wait, and who owns the link.

#include "service/service_channel.h"

#include <gtest/gtest.h>

#include "link/session_fixture.h"
#include "service/calibration.h"
#include "service/service_protocol.h"

namespace {

constexpr qint64 kLongEnough = 60'000;

struct Outcome {
    bool done = false;
    qint64 atMs = -1;
    ServiceChannel::Reply reply;
};

class ServiceChannelTest : public ::testing::Test, protected SessionFixture {
protected:
    ServiceChannelTest() { channel.setLanguage(UiLanguage::English); }

    ServiceChannel::Done record(Outcome* outcome) {
        return [this, outcome](const ServiceChannel::Reply& reply) {
            *outcome = {true, clock.nowMs(), reply};
        };
    }
    // One request in an operation of its own, run to its end.
    Outcome exchange(AttemptCount preset, const QByteArray& frame = calibrationReadRequest()) {
        Outcome outcome;
        EXPECT_TRUE(channel.begin());
        const qint64 start = clock.nowMs();
        channel.Pc_Send_dt(frame, preset, ReplyLengths::any(), record(&outcome));
        clock.advanceUntil([&] { return outcome.done; }, kLongEnough);
        outcome.atMs -= start;
        channel.end();
        return outcome;
    }
    void silence() {
        SimFaults faults;
        faults.silentAlways = true;
        radio.setFaults(faults);
    }

    ServiceChannel channel{transport, prompts};
};

TEST_F(ServiceChannelTest, TheAttemptPresetSetsHowOftenARequestGoesOut) {
    silence();
    const struct {
        AttemptCount preset;
        size_t sends;
        qint64 givenUpAtMs;
    } cases[] = {
        {AttemptCount::Single, 1, 1020},
        {AttemptCount::Fresh, 3, 3 * 1020},
        // What the previous exchange left: all three were used, so one remains.
        {AttemptCount::Inherited, 1, 1020},
    };
    for (const auto& c : cases) {
        requests.clear();
        const Outcome outcome = exchange(c.preset);
        EXPECT_FALSE(outcome.reply.has_value());
        EXPECT_EQ(requests.size(), c.sends) << static_cast<int>(c.preset);
        EXPECT_EQ(outcome.atMs, c.givenUpAtMs) << static_cast<int>(c.preset);
    }
    EXPECT_TRUE(prompts.transcript().isEmpty()) << "the panel reports, not the channel";
}

TEST_F(ServiceChannelTest, AnInheritingRequestOnAFreshLinkGetsThreeAttempts) {
    SimFaults faults;
    faults.silent = {1, 2};
    radio.setFaults(faults);
    const Outcome outcome = exchange(AttemptCount::Inherited);
    ASSERT_TRUE(outcome.reply.has_value());
    EXPECT_EQ(*outcome.reply, QByteArray::fromHex("46232a2880003535"));
    EXPECT_EQ(requests.size(), 3u);
}

TEST_F(ServiceChannelTest, ABadChecksumDoesNotEndTheWait) {
    SimFaults faults;
    faults.badChecksum = {1};
    radio.setFaults(faults);
    const Outcome outcome = exchange(AttemptCount::Fresh);
    ASSERT_TRUE(outcome.reply.has_value());
    EXPECT_EQ(requests.size(), 2u);
    EXPECT_GT(outcome.atMs, 1020);

    requests.clear();
    faults.badChecksum = {3};
    radio.setFaults(faults);
    EXPECT_FALSE(exchange(AttemptCount::Single).reply.has_value());
    EXPECT_EQ(requests.size(), 1u);
}

TEST_F(ServiceChannelTest, RepliesOfTheWrongLengthAreNamedWhenTheRequestFails) {
    SimFaults faults;
    faults.wrongLength = {1, 2};
    radio.setFaults(faults);
    Outcome outcome;
    ASSERT_TRUE(channel.begin());
    channel.Pc_Send_dt(calibrationReadRequest(), AttemptCount::Single, {8}, record(&outcome));
    clock.advanceUntil([&] { return outcome.done; }, kLongEnough);
    EXPECT_FALSE(outcome.reply.has_value());
    EXPECT_EQ(prompts.transcript(),
              QStringList{"box: The radio's reply had the wrong length (9 bytes) and was not "
                          "used | NOTE | warning"});
    // The next request starts clean: its reply fits after one that did not.
    prompts.clear();
    channel.Pc_Send_dt(calibrationReadRequest(), AttemptCount::Fresh, {8}, record(&outcome));
    clock.advanceUntil([&] { return outcome.reply.has_value(); }, kLongEnough);
    EXPECT_TRUE(prompts.transcript().isEmpty());
    channel.end();
}

TEST_F(ServiceChannelTest, MonitorModeHidesRepliesFromTheRequester) {
    QList<QByteArray> monitored;
    channel.setMonitor([&](const QByteArray& frame) { monitored << frame; });
    const Outcome outcome = exchange(AttemptCount::Single);
    EXPECT_FALSE(outcome.reply.has_value());
    EXPECT_EQ(monitored, QList<QByteArray>{QByteArray::fromHex("46232a2880003535")});

    // A panel exchange ends monitor mode before it sends.
    Outcome read;
    ASSERT_TRUE(channel.begin());
    channel.selectors = {4, 9};
    ASSERT_TRUE(channel.Panel_Exchange(
        ExchangeKind::Read, [] { return calibrationReadRequest(); }, {8}, record(&read)));
    clock.advanceUntil([&] { return read.done; }, kLongEnough);
    EXPECT_TRUE(read.reply.has_value());
    EXPECT_FALSE(channel.monitorActive());
    EXPECT_EQ(channel.selectors.RequestBlock, 0);
    EXPECT_EQ(channel.selectors.RequestSub, 0);
}

TEST_F(ServiceChannelTest, OneOwnerOfTheLink) {
    ASSERT_TRUE(channel.begin());
    EXPECT_FALSE(channel.begin());
    ServiceChannel other(transport, prompts);
    other.setLanguage(UiLanguage::English);
    EXPECT_FALSE(other.begin());
    ASSERT_EQ(prompts.boxes().size(), 2u);
    EXPECT_EQ(prompts.boxes()[0].icon, BoxIcon::Warning);
    channel.end();
    EXPECT_TRUE(other.begin());
    other.end();
}

TEST_F(ServiceChannelTest, AClosedPortIsReportedOncePerOperation) {
    port.close();
    for (int operation = 1; operation <= 2; ++operation) {
        EXPECT_FALSE(exchange(AttemptCount::Fresh).reply.has_value());
        EXPECT_EQ(prompts.transcript(),
                  QStringList(operation, "box: Please check COM Port | NOTE | warning"));
    }
    // A read through Panel_Exchange is refused before anything goes out.
    prompts.clear();
    ASSERT_TRUE(channel.begin());
    bool called = false;
    EXPECT_FALSE(channel.Panel_Exchange(
        ExchangeKind::Read, [] { return calibrationReadRequest(); }, {8},
        [&](const ServiceChannel::Reply&) { called = true; }));
    clock.advance(5000);
    EXPECT_FALSE(called);
    EXPECT_EQ(prompts.transcript(), QStringList{"box: Please check COM Port | "});
    EXPECT_TRUE(requests.empty());
}

TEST(ServiceChannelLineMode, ATextLineReplyIsTheLineBuffer) {
    ManualClock clock;
    FakePort port{clock};
    port.open("COM1");
    LinkTransport transport{port, clock};
    RecordingPrompts prompts;
    ServiceChannel channel{transport, prompts};
    ASSERT_TRUE(channel.begin());
    channel.init_send_str();
    ServiceChannel::Reply reply;
    channel.Pc_Send_dt(pack_pc_cmd(service::kVersionRead, channel.selectors), AttemptCount::Single,
                       ReplyLengths::any(), [&](const ServiceChannel::Reply& r) { reply = r; });
    clock.advance(20);
    port.inject(QByteArray::fromHex("410a42"));
    EXPECT_FALSE(reply.has_value());
    port.inject(QByteArray::fromHex("0d"));
    ASSERT_TRUE(reply.has_value());
    EXPECT_EQ(versionLines(*reply), QStringList({"A", "B"}));
    channel.end();

    // Framed replies again once the operation is over.
    ASSERT_TRUE(channel.begin());
    reply.reset();
    channel.Pc_Send_dt(calibrationReadRequest(), AttemptCount::Single, ReplyLengths::any(),
                       [&](const ServiceChannel::Reply& r) { reply = r; });
    clock.advance(20);
    port.inject(QByteArray::fromHex("4102010203"));  // 'A', two bytes, checksum 0x46
    EXPECT_FALSE(reply.has_value());
    port.inject(QByteArray::fromHex("41020102") + QByteArray(1, 0x46));
    ASSERT_TRUE(reply.has_value());
    EXPECT_EQ(*reply, QByteArray::fromHex("0102"));
}

}  // namespace
