#include <gtest/gtest.h>

#include <vector>

#include "link/link_trace.h"
#include "link/link_transport.h"
#include "link/session_view.h"
#include "support/fake_port.h"
#include "support/manual_clock.h"

namespace {

// Records what the transport tells its owner, with the clock's time.
struct Client : LinkClient {
    explicit Client(ManualClock& c) : clock(c) {}
    ManualClock& clock;
    std::vector<QByteArray> replies;
    std::vector<std::pair<qint64, int>> attemptTimeouts;  // time, attempt
    std::vector<std::pair<qint64, LinkFailure>> failures;
    int closedOnSend = 0;
    std::vector<qint64> sendsFinished;
    std::vector<int> ignored;

    void replyIgnored(int length) override { ignored.push_back(length); }
    void replyReceived(const QByteArray& payload) override { replies.push_back(payload); }
    void attemptTimedOut(int attempt) override {
        attemptTimeouts.push_back({clock.nowMs(), attempt});
    }
    void exchangeFailed(const LinkFailure& failure) override {
        failures.push_back({clock.nowMs(), failure});
    }
    void portClosedOnSend() override { ++closedOnSend; }
    void sendFinished() override { sendsFinished.push_back(clock.nowMs()); }
};

const QByteArray kSettingsRequest = QByteArray::fromHex("53030000045a");
const ReplyLengths kAny = ReplyLengths::any();

class TransportTest : public ::testing::Test {
protected:
    void SetUp() override {
        port.open("COM1");
        ASSERT_TRUE(transport.acquire(&client));
        transport.startReceiving();
    }

    ManualClock clock;
    FakePort port{clock};
    LinkTransport transport{port, clock};
    Client client{clock};
};

TEST_F(TransportTest, SendsOneWritePerByteThenSettlesAndOpensReception) {
    port.drainDelayMs = 3;
    transport.send_uart(hexBytes("450045"));
    EXPECT_EQ(port.writes,
              (std::vector<QByteArray>{hexBytes("45"), hexBytes("00"), hexBytes("45")}));
    EXPECT_FALSE(port.receiveNotification());

    const int discardsBefore = port.discardInputCount;
    clock.advance(22);
    EXPECT_TRUE(client.sendsFinished.empty()) << "the 20 ms count from the drain, not the write";
    clock.advance(1);
    EXPECT_EQ(client.sendsFinished, std::vector<qint64>{23});
    EXPECT_EQ(port.discardInputCount, discardsBefore + 1);
    EXPECT_TRUE(port.receiveNotification());
}

TEST_F(TransportTest, WhatArrivesWhileSettlingNeverReachesTheParser) {
    transport.request(kSettingsRequest, 1000, 3, kAny);
    clock.advance(10);
    port.inject(hexBytes("4101 07"));  // the start of a frame, during the settle
    clock.advance(10);
    port.inject(hexBytes("49"));  // its checksum, after: no command byte, ignored
    port.inject(hexBytes("4101 08 4a"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.replies[0], hexBytes("08"));
}

TEST_F(TransportTest, ATimeOutSendsTheSameFrameAgainUntilTheAttemptsAreUsedUp) {
    for (int attempts : {3, 1}) {
        client.attemptTimeouts.clear();
        client.failures.clear();
        port.takeWritten();
        const qint64 start = clock.nowMs();
        transport.request(kSettingsRequest, 1000, attempts, kAny);
        clock.advance(5000);
        // Each attempt: 20 ms to settle, then 1000 ms for the reply.
        std::vector<std::pair<qint64, int>> expectedTimeouts;
        for (int attempt = 1; attempt < attempts; ++attempt) {
            expectedTimeouts.push_back({start + attempt * 1020, attempt});
        }
        EXPECT_EQ(client.attemptTimeouts, expectedTimeouts) << attempts << " attempts";
        EXPECT_EQ(port.takeWritten(), kSettingsRequest.repeated(attempts)) << attempts;
        ASSERT_EQ(client.failures.size(), 1u) << attempts;
        EXPECT_EQ(client.failures[0].first, start + attempts * 1020) << attempts;
        EXPECT_EQ(client.failures[0].second.kind, LinkFailure::GaveUp) << attempts;
        EXPECT_EQ(transport.attemptsLeft(), 1) << "what a give-up leaves";
    }
}

TEST_F(TransportTest, AReplyEndsTheAttemptsAndLeavesTheRestForTheNextExchange) {
    transport.request(kSettingsRequest, 1000, 3, kAny);
    clock.advance(1020 + 20);
    port.inject(hexBytes("4100 41"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.attemptTimeouts.size(), 1u);
    clock.advance(5000);
    EXPECT_TRUE(client.failures.empty());
    EXPECT_EQ(port.takeWritten(), kSettingsRequest.repeated(2));
    EXPECT_EQ(transport.attemptsLeft(), 2);
}

TEST_F(TransportTest, AnOwnerThatCancelsOnATimeOutStopsTheResend) {
    struct Cancelling : Client {
        using Client::Client;
        LinkTransport* transport = nullptr;
        void attemptTimedOut(int attempt) override {
            Client::attemptTimedOut(attempt);
            transport->abort();
        }
    } cancelling{clock};
    cancelling.transport = &transport;
    transport.release(&client);
    ASSERT_TRUE(transport.acquire(&cancelling));
    transport.request(kSettingsRequest, 1000, 3, kAny);
    clock.advance(5000);
    EXPECT_EQ(cancelling.attemptTimeouts.size(), 1u);
    EXPECT_EQ(port.takeWritten(), kSettingsRequest);
    EXPECT_TRUE(cancelling.failures.empty());
}

TEST_F(TransportTest, OnlyTheOwnerOfTheLinkSends) {
    Client other{clock};
    EXPECT_FALSE(transport.acquire(&other));
    transport.release(&client);
    transport.request(kSettingsRequest, 1000, 3, kAny);
    transport.send_uart(hexBytes("450045"));
    clock.advance(5000);
    EXPECT_TRUE(port.writes.empty());
    EXPECT_TRUE(client.failures.empty());
    EXPECT_TRUE(transport.acquire(&other));
}

TEST_F(TransportTest, TwoFramesInOneEventGiveTheSecond) {
    transport.request(kSettingsRequest, 1000, 3, kAny);
    clock.advance(20);
    port.inject(hexBytes("4101 07 49 4101 08 4a"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.replies[0], hexBytes("08"));
}

TEST_F(TransportTest, WhatArrivesDoesNotPutOffTheTimeOutUnlessAFrameIsUnderWay) {
    const struct {
        const char* name;
        int atMs;  // after the reply timer was armed
        QByteArray bytes;
        qint64 timeOutAtMs;
    } cases[] = {
        {"bad checksum", 500, hexBytes("4101 07 00"), 1000},
        {"garbage", 500, hexBytes("00ff"), 1000},
        {"frame cut after its length byte", 500, hexBytes("4108"), 1000},
        // 11 bytes at 9600 baud take 11.5 ms; the adapter may add 50 ms.
        {"frame still arriving at the time-out", 995, hexBytes("4108 0102"), 995 + 11 + 50},
        {"frame with no length yet", 995, hexBytes("41"), 995 + 138 + 50},
    };
    for (const auto& c : cases) {
        client.failures.clear();
        client.replies.clear();
        transport.request(kSettingsRequest, 1000, 1, kAny);
        const qint64 armed = clock.nowMs() + 20;
        clock.advance(20 + c.atMs);
        port.inject(c.bytes);
        clock.advance(c.timeOutAtMs - c.atMs - 1);
        EXPECT_TRUE(client.failures.empty()) << c.name;
        clock.advance(1);
        ASSERT_EQ(client.failures.size(), 1u) << c.name;
        EXPECT_EQ(client.failures[0].first, armed + c.timeOutAtMs) << c.name;
        // The next frame is read from its first byte, whatever was left half way.
        transport.request(kSettingsRequest, 1000, 3, kAny);
        clock.advance(20);
        port.inject(hexBytes("4100 41"));
        EXPECT_EQ(client.replies.size(), 1u) << c.name;
    }
}

TEST_F(TransportTest, NoiseOnTheLineCannotKeepAnAttemptAlive) {
    transport.request(kSettingsRequest, 1000, 1, kAny);
    for (int ms = 0; ms < 10'000 && client.failures.empty(); ms += 10) {
        clock.advance(10);
        port.inject(hexBytes("00 41 ff 3c 41 05 00 01"));
    }
    ASSERT_EQ(client.failures.size(), 1u);
    EXPECT_LE(client.failures[0].first, 20 + 1000 + 138 + 50);
}

TEST_F(TransportTest, AFrameOfALengthTheRequestDoesNotTakeIsIgnoredAndTheWaitGoesOn) {
    transport.request(kSettingsRequest, 1000, 1, {4});
    clock.advance(20 + 100);
    port.inject(hexBytes("4101 07 49"));
    EXPECT_TRUE(client.replies.empty());
    EXPECT_EQ(client.ignored, std::vector<int>{1});
    port.inject(hexBytes("4404 13001000 6b"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.replies[0], hexBytes("13001000"));
}

TEST_F(TransportTest, AnImmediateRequestTakesAReplyThatComesBeforeTheDrain) {
    port.drainDelayMs = 50;
    transport.request(hexBytes("3b0300000 03e"), 100, 1, kAny, LinkTransport::SendStyle::Immediate);
    EXPECT_TRUE(port.receiveNotification());
    clock.advance(10);
    port.inject(hexBytes("4100 41"));
    EXPECT_EQ(client.replies.size(), 1u);
    clock.advance(200);
    EXPECT_TRUE(client.failures.empty());
}

TEST_F(TransportTest, APortThatFailsAfterAnUnansweredFrameHasDrainedTakesNothingBack) {
    port.drainDelayMs = 3;
    transport.send_uart(hexBytes("450045"));
    clock.advance(3 + 10);
    port.fail();
    EXPECT_EQ(client.sendsFinished.size(), 1u);
    EXPECT_TRUE(client.failures.empty());
}

TEST_F(TransportTest, AClosedPortSendsNothingAndTheRequesterTimesOut) {
    port.close();
    transport.request(kSettingsRequest, 1000, 2, kAny);
    EXPECT_TRUE(port.writes.empty());
    EXPECT_EQ(client.closedOnSend, 1);
    clock.advance(1000);
    EXPECT_EQ(client.closedOnSend, 2) << "told again at the second attempt";
    clock.advance(1000);
    ASSERT_EQ(client.failures.size(), 1u);
    EXPECT_EQ(client.failures[0].second.kind, LinkFailure::GaveUp);
}

TEST_F(TransportTest, APortFailureEndsTheExchangeAndClosesThePort) {
    transport.request(kSettingsRequest, 1000, 3, kAny);
    clock.advance(100);
    QStringList lost;
    QObject::connect(&transport, &LinkTransport::portLost,
                     [&](const QString& reason) { lost << reason; });
    port.fail();
    EXPECT_FALSE(port.isOpen());
    ASSERT_EQ(client.failures.size(), 1u);
    EXPECT_EQ(client.failures[0].second.kind, LinkFailure::PortLost);
    EXPECT_EQ(client.failures[0].second.detail, "device removed");
    EXPECT_EQ(lost, QStringList({"device removed"}));
    clock.advance(5000);
    EXPECT_EQ(client.failures.size(), 1u) << "no tick after the port is gone";
    EXPECT_TRUE(client.attemptTimeouts.empty());
}

TEST_F(TransportTest, MonitorModeTakesEveryFrame) {
    std::vector<QByteArray> monitored;
    transport.setMonitor([&](const QByteArray& payload) { monitored.push_back(payload); });
    transport.request(hexBytes("6a0100 6b"), 1000, 3, kAny);
    clock.advance(20);
    port.inject(hexBytes("4101 07 49 4101 08 4a"));
    EXPECT_EQ(monitored, (std::vector<QByteArray>{hexBytes("07"), hexBytes("08")}));
    EXPECT_TRUE(client.replies.empty());
}

}  // namespace

namespace {

TEST_F(TransportTest, TheTraceHasALinePerFrameAndPerRunOfOtherBytes) {
    QStringList lines;
    LinkTrace trace([&](const QString& line) { lines << line; });
    clock.advance(1000);
    transport.setTrace(&trace);
    transport.request(hexBytes("520303000560"), 5000, 1, {1});
    clock.advance(20 + 30);
    port.inject(hexBytes("00ff 4101 07 00 4101 07 49"));
    transport.request(hexBytes("520304000561"), 5000, 1, {1});
    clock.advance(20 + 10);
    port.inject(hexBytes("4105 01"));
    clock.advance(5000);
    EXPECT_EQ(lines,
              QStringList({"0.000 > 52 03 03 00 05 60  R ch 4", "0.050 < 00 ff  not a frame",
                           "0.050 < 41 01 07 00  reply 1 bytes, checksum bad",
                           "0.050 < 41 01 07 49  reply 1 bytes, checksum ok",
                           "0.050 > 52 03 04 00 05 61  R ch 5", "5.070 < 41 05 01  not a frame"}));
    transport.setTrace(nullptr);
}

}  // namespace
