#include "link/read_session.h"

#include <gtest/gtest.h>

#include <functional>

#include "link/requests.h"
#include "session_fixture.h"
#include "sim/sim_memory.h"

namespace {

constexpr qint64 kLongEnough = 60'000;

class ReadSessionTest : public ::testing::Test, protected SessionFixture {
protected:
    ReadSessionTest() { doc = validPlan(); }

    // Runs the read to its end; returns the prompts in order.
    QStringList runRead() {
        EXPECT_TRUE(session.start());
        clock.advanceUntil([&] { return !session.isRunning(); }, kLongEnough);
        EXPECT_FALSE(session.isRunning());
        return prompts.transcript();
    }

    Codeplug doc;
    ReadSession session{transport, doc, prompts, view};
};

TEST_F(ReadSessionTest, ReadsTheSettingsAndEveryChannel) {
    const Codeplug before = doc;
    EXPECT_EQ(runRead(),
              QStringList({"status: Reading......", "status: Read OK", "box: Read OK | Read OK"}));
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
    EXPECT_EQ(doc.chtot, "16");
    EXPECT_EQ(doc.plan[0].rxfreq, "446.00625");
    EXPECT_EQ(doc.plan[24].txfreq, "446.30625");
    EXPECT_EQ(doc.plan[1].rxctc, "67.0");
    EXPECT_EQ(doc.plan[1].band, "wide");
    EXPECT_EQ(doc.plan[1].power, "low");
    EXPECT_NE(doc.plan[1].rxfreq, before.plan[1].rxfreq);

    EXPECT_EQ(view.caption, "Read data from Radio");
    EXPECT_EQ(view.progressWhenHidden, 75);
    EXPECT_TRUE(view.buttonsEnabled);
    EXPECT_EQ(requests.size(), 26u);
    EXPECT_EQ(requestHex()[0], "53 03 00 00 04 5a");
    EXPECT_EQ(requestHex()[4], "52 03 03 00 05 5d");  // the fourth "R"
    EXPECT_FALSE(transport.isBusy());
}

TEST_F(ReadSessionTest, RetriesTheOpeningEverySecondUntilTheThirdIsAnswered) {
    SimFaults faults;
    faults.silent = {1, 2};
    radio.setFaults(faults);
    runRead();
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
    ASSERT_GE(requests.size(), 3u);
    // Each attempt: 20 ms settle, then a second for the reply.
    EXPECT_EQ(requests[1].first - requests[0].first, 1020);
    EXPECT_EQ(requests[2].first - requests[1].first, 1020);
    EXPECT_EQ(requestsWithCommand('S'), 3);
    EXPECT_EQ(requestsWithCommand('R'), 25);
}

TEST_F(ReadSessionTest, ASilentRadioGetsThreeRequestsAndOneReport) {
    SimFaults faults;
    faults.silentAlways = true;
    radio.setFaults(faults);
    const Codeplug before = doc;
    EXPECT_EQ(runRead(),
              QStringList({"status: Reading......", "status: Transmission ERROR",
                           "box: Transmission Error，Check Radio | NOTE", "status: COM"}));
    EXPECT_EQ(session.outcome(), SessionOutcome::TimedOut);
    EXPECT_EQ(requestsWithCommand('S'), 3);
    EXPECT_EQ(clock.nowMs(), 3 * 1020);
    EXPECT_TRUE(doc.plan == before.plan);
    EXPECT_FALSE(view.progressShown);
    EXPECT_TRUE(view.buttonsEnabled);
    clock.advance(kLongEnough);
    EXPECT_EQ(requests.size(), 3u) << "nothing after the give-up";
}

// Request 1 is "S", request k + 2 the "R" of slot k.
TEST_F(ReadSessionTest, AFaultAtAChannelEndsTheReadWithTheSlotsBeforeItRead) {
    const int k = 6;
    const struct {
        const char* name;
        QSet<int> SimFaults::*fault;
    } cases[] = {
        {"silence", &SimFaults::silent},
        {"bad checksum", &SimFaults::badChecksum},
        {"frame cut after its command byte", &SimFaults::cutFrame},
    };
    for (const auto& c : cases) {
        SessionFixture world;
        Codeplug plan = validPlan();
        const Codeplug before = plan;
        ReadSession read(world.transport, plan, world.prompts, world.view);
        SimFaults faults;
        (faults.*c.fault).insert(k + 2);
        world.radio.setFaults(faults);
        qint64 endedAt = -1;
        QObject::connect(&read, &RadioSession::finished, [&] { endedAt = world.clock.nowMs(); });
        ASSERT_TRUE(read.start()) << c.name;
        world.clock.advanceUntil([&] { return !read.isRunning(); }, kLongEnough);
        if (c.fault == &SimFaults::silent) {
            // A channel has one attempt of 5 s, counted from the end of the 20 ms settle.
            EXPECT_EQ(endedAt - world.requests.back().first, 20 + 5000);
        }

        EXPECT_EQ(read.outcome(), SessionOutcome::TimedOut) << c.name;
        EXPECT_EQ(world.prompts.transcript(),
                  QStringList({"status: Reading......", "status: Transmission ERROR",
                               "box: Transmission Error，Check Radio | NOTE", "status: COM",
                               "status: Read Error", "box: Read Error | Read Error"}))
            << c.name;
        for (int slot = 0; slot < kSlotCount; ++slot) {
            if (slot < k) {
                EXPECT_EQ(plan.plan[slot].rxfreq, formatFrequencyValue(446.00625 + slot * 0.0125))
                    << c.name << " slot " << slot;
            } else {
                EXPECT_TRUE(plan.plan[slot] == before.plan[slot]) << c.name << " slot " << slot;
            }
        }
        EXPECT_EQ(world.requestsWithCommand('R'), k + 1) << c.name;
    }
}

// Request 1 is "S", request k + 2 the "R" of slot k.
TEST_F(ReadSessionTest, RepliesThatDoNotFitAreNeverTakenAndTheUserLearnsWhichChannels) {
    const QByteArray unreadable = QByteArray::fromHex("1cc11cc1 05 05 01 029e 029e 0000");
    const struct {
        const char* name;
        std::function<void(SessionFixture&)> fault;
        SessionOutcome outcome;
        QStringList unread;
        bool slot3Read;
    } cases[] = {
        {"garbage before every reply",
         [](SessionFixture& w) {
             SimFaults faults;
             for (int request = 2; request <= 26; ++request) faults.garbage.insert(request);
             w.radio.setFaults(faults);
         },
         SessionOutcome::Succeeded,
         {},
         true},
        {"every channel reply one byte too long",
         [](SessionFixture& w) {
             SimFaults faults;
             for (int request = 2; request <= 26; ++request) faults.wrongLength.insert(request);
             w.radio.setFaults(faults);
         },
         SessionOutcome::TimedOut,
         {"channel 1: the radio's reply had the wrong length (12 bytes)"},
         false},
        {"a 13-byte record without a custom DCS code at channel 5",
         [&](SessionFixture& w) { w.radio.setChannelRecord(4, unreadable); },
         SessionOutcome::Incomplete,
         {"channel 5: the radio's channel record cannot be read"},
         true},
    };
    for (const auto& c : cases) {
        SessionFixture world;
        Codeplug plan = validPlan();
        const Codeplug before = plan;
        ReadSession read(world.transport, plan, world.prompts, world.view);
        c.fault(world);
        ASSERT_TRUE(read.start());
        world.clock.advanceUntil([&] { return !read.isRunning(); }, kLongEnough);
        EXPECT_EQ(read.outcome(), c.outcome) << c.name;
        EXPECT_EQ(read.unreadChannels(), c.unread) << c.name;
        EXPECT_EQ(plan.plan[3].rxfreq != before.plan[3].rxfreq, c.slot3Read) << c.name;
        const QStringList said = world.prompts.transcript();
        EXPECT_EQ(said.last(), c.outcome == SessionOutcome::Succeeded ? "box: Read OK | Read OK"
                               : c.outcome == SessionOutcome::TimedOut
                                   ? "box: Read Error | Read Error"
                                   : "box: These channels could not be read and keep their "
                                     "previous contents:\n" +
                                         c.unread.join('\n') + " | NOTE | warning")
            << c.name;
        EXPECT_FALSE(said.contains("status: Read OK") && c.outcome != SessionOutcome::Succeeded)
            << c.name;
        if (c.outcome == SessionOutcome::Incomplete) {
            EXPECT_EQ(plan.plan[4].rxfreq, before.plan[4].rxfreq) << c.name;
            EXPECT_EQ(world.requestsWithCommand('R'), 25) << c.name;
        }
    }
}

TEST_F(ReadSessionTest, ALateReplyToTheOpeningIsNotTakenForAChannel) {
    radio.setLatencyMs(1100);
    runRead();
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        EXPECT_EQ(doc.plan[slot].rxfreq, formatFrequencyValue(446.00625 + slot * 0.0125))
            << "slot " << slot;
    }
}

TEST_F(ReadSessionTest, ClosingTheProgressWindowAtChannelTenKeepsSlotsZeroToNine) {
    const Codeplug before = doc;
    ASSERT_TRUE(session.start());
    clock.advanceUntil([&] { return requestsWithCommand('R') == 11; }, kLongEnough);
    session.cancel();
    EXPECT_EQ(session.outcome(), SessionOutcome::Cancelled);
    EXPECT_EQ(prompts.transcript(), QStringList({"status: Reading......", "status: Read Error",
                                                 "box: Read Error | Read Error"}));
    EXPECT_EQ(doc.plan[9].rxfreq, "446.11875");
    EXPECT_TRUE(doc.plan[10] == before.plan[10]);
    EXPECT_TRUE(view.buttonsEnabled);
    EXPECT_FALSE(view.progressShown);
    clock.advance(kLongEnough);
    EXPECT_EQ(requestsWithCommand('R'), 11);
    EXPECT_TRUE(doc.plan[10] == before.plan[10]) << "a late reply changes nothing";
}

TEST_F(ReadSessionTest, AHangUpEndsTheReadLikeATimeOutAndClosesThePort) {
    SimFaults faults;
    faults.hangUpAt = 5;
    radio.setFaults(faults);
    EXPECT_EQ(runRead(), QStringList({"status: Reading......", "status: Transmission ERROR",
                                      "box: Transmission Error，Check Radio | NOTE", "status: COM",
                                      "status: Read Error", "box: Read Error | Read Error",
                                      "status: COM Closed"}));
    EXPECT_FALSE(port.isOpen());
    EXPECT_LT(clock.nowMs(), 1000) << "no waiting for a time-out";
}

TEST_F(ReadSessionTest, AClosedPortOnlyAsksForOne) {
    port.close();
    EXPECT_FALSE(session.start());
    EXPECT_EQ(prompts.transcript(), QStringList({"box: Please check COM Port | "}));
    EXPECT_EQ(session.outcome(), SessionOutcome::Refused);
    EXPECT_TRUE(view.buttonsEnabled);
    EXPECT_FALSE(view.progressShown);
}

TEST_F(ReadSessionTest, ASecondSessionIsRefusedWhileOneRuns) {
    ASSERT_TRUE(session.start());
    ReadSession second(transport, doc, prompts, view);
    prompts.clear();
    EXPECT_FALSE(second.start());
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_TRUE(prompts.boxes()[0].text.contains("busy"));
    clock.advanceUntil([&] { return !session.isRunning(); }, kLongEnough);
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
}

}  // namespace
