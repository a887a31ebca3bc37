#include <gtest/gtest.h>

#include <vector>

#include "fake_port.h"
#include "link/link_transport.h"
#include "link/session_view.h"
#include "platform/manual_clock.h"
#include "platform/recording_prompts.h"

namespace {

// Records what the transport tells its owner, with the clock's time.
struct Client : LinkClient {
    explicit Client(ManualClock& c) : clock(c) {}
    ManualClock& clock;
    std::vector<QByteArray> replies;
    std::vector<std::pair<qint64, bool>> timeouts;  // time, gave up
    std::vector<qint64> sendsFinished;

    void replyReceived(const QByteArray& payload) override { replies.push_back(payload); }
    void replyTimedOut(bool gaveUp) override { timeouts.push_back({clock.nowMs(), gaveUp}); }
    void sendFinished() override { sendsFinished.push_back(clock.nowMs()); }
};

class TransportTest : public ::testing::Test {
protected:
    void SetUp() override {
        port.open("COM1");
        ASSERT_TRUE(transport.acquire(&client, LinkUse::Session, UiLanguage::English));
        transport.startReceiving();
    }

    ManualClock clock;
    FakePort port{clock};
    RecordingPrompts prompts;
    NullSessionView view;
    LinkTransport transport{port, clock, prompts, view};
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
    transport.sendRequest(hexBytes("53030000045a"), 1000);
    clock.advance(10);
    port.inject(hexBytes("4101 07"));  // the start of a frame, during the settle
    clock.advance(10);
    port.inject(hexBytes("49"));  // its checksum, after: no command byte, ignored
    port.inject(hexBytes("4101 08 4a"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.replies[0], hexBytes("08"));
}

TEST_F(TransportTest, AttemptsEndWithTheThirdTickOrTheFirstWhenPreset) {
    for (int preset : {0, 2}) {
        client.timeouts.clear();
        transport.setAttemptCount(preset);
        std::vector<bool> gaveUp;
        while (gaveUp.empty() || !gaveUp.back()) {
            transport.sendRequest(hexBytes("53030000045a"), 1000);
            clock.advance(1020);
            ASSERT_FALSE(client.timeouts.empty());
            gaveUp.push_back(client.timeouts.back().second);
            ASSERT_LE(gaveUp.size(), 3u);
        }
        EXPECT_EQ(gaveUp.size(), preset == 0 ? 3u : 1u) << "preset " << preset;
        EXPECT_TRUE(transport.giveUp());
    }
}

TEST_F(TransportTest, GivingUpDuringASessionReportsTheFailure) {
    transport.setAttemptCount(2);
    transport.sendRequest(hexBytes("52030000055a"), 5000);
    clock.advance(5020);
    EXPECT_EQ(prompts.transcript(),
              QStringList({"status: Transmission ERROR",
                           "box: Transmission Error，Check Radio | NOTE", "status: COM"}));
}

TEST_F(TransportTest, GivingUpDuringAServiceExchangeStaysQuiet) {
    transport.release(&client);
    ASSERT_TRUE(transport.acquire(&client, LinkUse::Service, UiLanguage::English));
    transport.setAttemptCount(2);
    transport.sendRequest(hexBytes("52030000055a"), 1000);
    clock.advance(1020);
    ASSERT_EQ(client.timeouts.size(), 1u);
    EXPECT_TRUE(client.timeouts[0].second);
    EXPECT_TRUE(prompts.entries().empty());
}

TEST_F(TransportTest, TwoFramesInOneEventGiveTheSecond) {
    transport.sendRequest(hexBytes("53030000045a"), 1000);
    clock.advance(20);
    port.inject(hexBytes("4101 07 49 4101 08 4a"));
    ASSERT_EQ(client.replies.size(), 1u);
    EXPECT_EQ(client.replies[0], hexBytes("08"));
}

TEST_F(TransportTest, TheTimeOutRunsAgainFromEachReceiveEvent) {
    const struct {
        const char* name;
        QByteArray bytes;
    } cases[] = {
        {"bad checksum", hexBytes("4101 07 00")},
        {"garbage", hexBytes("00ff")},
        {"frame cut after its command byte", hexBytes("41")},
    };
    for (const auto& c : cases) {
        client.timeouts.clear();
        client.replies.clear();
        transport.setAttemptCount(0);
        transport.sendRequest(hexBytes("53030000045a"), 1000);
        const qint64 armed = clock.nowMs() + 20;
        clock.advance(20 + 500);
        port.inject(c.bytes);
        clock.advance(999);
        EXPECT_TRUE(client.timeouts.empty()) << c.name;
        clock.advance(1);
        ASSERT_EQ(client.timeouts.size(), 1u) << c.name;
        EXPECT_EQ(client.timeouts[0].first, armed + 1500) << c.name;
        // The next frame is read from its first byte, whatever was left half way.
        transport.sendRequest(hexBytes("53030000045a"), 1000);
        clock.advance(20);
        port.inject(hexBytes("4100 41"));
        EXPECT_EQ(client.replies.size(), 1u) << c.name;
    }
}

TEST_F(TransportTest, AClosedPortSendsNothingAndTheRequesterTimesOut) {
    port.close();
    transport.sendRequest(hexBytes("53030000045a"), 1000);
    EXPECT_TRUE(port.writes.empty());
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, "Please check COM Port");
    EXPECT_EQ(prompts.boxes()[0].icon, BoxIcon::Warning);
    clock.advance(1000);
    EXPECT_EQ(client.timeouts.size(), 1u);
}

TEST_F(TransportTest, APortFailureEndsTheExchangeAndClosesThePort) {
    transport.sendRequest(hexBytes("53030000045a"), 1000);
    clock.advance(100);
    port.fail();
    EXPECT_FALSE(port.isOpen());
    ASSERT_EQ(client.timeouts.size(), 1u);
    EXPECT_TRUE(client.timeouts[0].second);
    EXPECT_EQ(prompts.statusTexts(), QStringList({"Transmission ERROR", "COM", "COM Closed"}));
    clock.advance(5000);
    EXPECT_EQ(client.timeouts.size(), 1u) << "no tick after the port is gone";
}

TEST_F(TransportTest, MonitorModeTakesEveryFrame) {
    std::vector<QByteArray> monitored;
    transport.setMonitor([&](const QByteArray& payload) { monitored.push_back(payload); });
    transport.sendRequest(hexBytes("6a0100 6b"), 1000);
    clock.advance(20);
    port.inject(hexBytes("4101 07 49 4101 08 4a"));
    EXPECT_EQ(monitored, (std::vector<QByteArray>{hexBytes("07"), hexBytes("08")}));
    EXPECT_TRUE(client.replies.empty());
}

}  // namespace
