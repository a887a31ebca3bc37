#include "sim/sim_radio.h"

#include <gtest/gtest.h>

#include <vector>

#include "link/frame.h"
#include "sim/sim_memory.h"
#include "sim/simulated_port.h"
#include "support/fake_port.h"
#include "support/manual_clock.h"

namespace {

class SimRadioTest : public ::testing::Test {
protected:
    void SetUp() override {
        radio.setTransmitter([this](const QByteArray& bytes) {
            sent.push_back({clock.nowMs(), bytes});
        });
        radio.setHangUpHandler([this] { ++hangUps; });
    }

    // Sends a request and returns what the radio answered within a second.
    QByteArray ask(const QByteArray& request) {
        sent.clear();
        radio.receive(request);
        clock.advance(1000);
        QByteArray all;
        for (const auto& s : sent) all.append(s.second);
        return all;
    }

    ManualClock clock;
    SimRadio radio{clock};
    std::vector<std::pair<qint64, QByteArray>> sent;
    int hangUps = 0;
};

QByteArray frame(quint8 command, const QByteArray& payload) {
    return LinkFrame{command, payload}.encode();
}

TEST_F(SimRadioTest, AnswersTheProgrammingRequestsAfterItsLatency) {
    radio.receive(hexBytes("53030000045a"));
    clock.advance(SimRadio::kDefaultLatencyMs - 1);
    EXPECT_TRUE(sent.empty());
    clock.advance(1);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].second, frame(0x44, initialSettingsRecord()));

    EXPECT_EQ(ask(hexBytes("52030300055d")), frame(0x44, initialChannelRecord(3)));
}

TEST_F(SimRadioTest, KeepsWhatIsWrittenAndAcknowledgesIt) {
    const QByteArray settings = hexBytes("d3811900");
    EXPECT_EQ(ask(frame(0x58, hexBytes("0000") + settings)), hexBytes("410041"));
    EXPECT_EQ(radio.settingsRecord(), settings);

    const QByteArray longRecord = hexBytes("1cc11cc1a2a203000102000304");
    EXPECT_EQ(ask(frame(0x57, hexBytes("0700") + longRecord)), hexBytes("410041"));
    EXPECT_EQ(radio.channelRecord(7), longRecord);
    // Read back, a custom DCS code carries its inversion flag, as in the professional list.
    EXPECT_EQ(ask(frame(0x52, hexBytes("070005"))),
              frame(0x44, hexBytes("1cc11cc1a2a21b000102000304")));

    EXPECT_TRUE(ask(hexBytes("450045")).isEmpty());
    EXPECT_TRUE(radio.programmingEnded());
}

TEST_F(SimRadioTest, LeavesMalformedRequestsUnanswered) {
    const struct {
        const char* name;
        QByteArray request;
    } cases[] = {
        {"bad checksum", hexBytes("53030000045b")},
        {"channel 25", frame(0x52, hexBytes("190005"))},
        {"record of 12 bytes", frame(0x57, hexBytes("0000") + QByteArray(12, '\0'))},
        {"unknown command", frame(0x30, {})},
    };
    for (const auto& c : cases) EXPECT_TRUE(ask(c.request).isEmpty()) << c.name;
    EXPECT_EQ(radio.channelRecord(0), initialChannelRecord(0));
}

TEST_F(SimRadioTest, StartsAfreshAfterAPauseInsideARequest) {
    radio.receive(hexBytes("5303"));
    clock.advance(SimRadio::kInterByteTimeoutMs + 1);
    EXPECT_EQ(ask(hexBytes("53030000045a")), frame(0x44, initialSettingsRecord()));
}

TEST_F(SimRadioTest, MakesTheFaultsItIsToldToForOneRequest) {
    const QByteArray good = frame(0x44, initialSettingsRecord());
    QByteArray badSum = good;
    badSum.back() = static_cast<char>(badSum.back() + 1);
    const struct {
        const char* name;
        QSet<int> SimFaults::*set;
        QByteArray reply;
    } cases[] = {
        {"silent", &SimFaults::silent, {}},
        {"bad checksum", &SimFaults::badChecksum, badSum},
        {"garbage", &SimFaults::garbage, hexBytes("00ff3c497f41ff") + good},
        {"cut", &SimFaults::cutFrame, hexBytes("44")},
        {"wrong length", &SimFaults::wrongLength,
         frame(0x44, initialSettingsRecord() + QByteArray(1, '\0'))},
    };
    for (const auto& c : cases) {
        SimRadio fresh(clock);
        QByteArray replies;
        fresh.setTransmitter([&](const QByteArray& bytes) { replies.append(bytes); });
        SimFaults faults;
        (faults.*c.set).insert(2);
        fresh.setFaults(faults);
        for (int request = 1; request <= 3; ++request) {
            replies.clear();
            fresh.receive(hexBytes("53030000045a"));
            clock.advance(1000);
            EXPECT_EQ(replies, request == 2 ? c.reply : good) << c.name << " request " << request;
        }
    }
}

TEST_F(SimRadioTest, HangsUpAtTheGivenRequestAndStaysSilent) {
    SimFaults faults;
    faults.hangUpAt = 2;
    radio.setFaults(faults);
    EXPECT_FALSE(ask(hexBytes("53030000045a")).isEmpty());
    EXPECT_TRUE(ask(hexBytes("53030000045a")).isEmpty());
    EXPECT_EQ(hangUps, 1);
    EXPECT_TRUE(ask(hexBytes("53030000045a")).isEmpty());
}

TEST(SimulatedPort, PacesBothDirectionsAtTheLineRate) {
    ManualClock clock;
    SimRadio radio(clock);
    SimulatedPort port(clock, radio);
    port.setPacing(true);
    ASSERT_EQ(port.open("sim"), PortOpenError::None);
    port.setReceiveNotification(true);

    qint64 drainedAt = -1;
    std::vector<std::pair<qint64, qint64>> arrivals;  // time, bytes available
    QObject::connect(&port, &SerialPort::drained, [&] { drainedAt = clock.nowMs(); });
    QObject::connect(&port, &SerialPort::received, [&] {
        arrivals.push_back({clock.nowMs(), port.bytesAvailable()});
    });

    port.write(hexBytes("53030000045a"));
    EXPECT_EQ(port.bytesToWrite(), 6);
    clock.advance(200);
    EXPECT_EQ(drainedAt, 7);  // 6 bytes of 1.04 ms
    // The radio has the request at 7 ms and answers after its latency with seven bytes, each
    // delivered on the millisecond after it is complete: 38.04 ms .. 44.29 ms.
    const qint64 answered = 7 + SimRadio::kDefaultLatencyMs;
    ASSERT_FALSE(arrivals.empty());
    EXPECT_EQ(arrivals.front().first, answered + 2);
    EXPECT_EQ(arrivals.back().first, answered + 8);
    EXPECT_EQ(arrivals.size(), 7u);
    EXPECT_EQ(port.bytesAvailable(), 7);
}

}  // namespace
