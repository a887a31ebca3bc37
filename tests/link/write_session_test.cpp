#include "link/write_session.h"

#include <gtest/gtest.h>

#include <variant>

#include "link/memory_image.h"
#include "link/read_session.h"
#include "model/code_tables.h"
#include "session_fixture.h"

namespace {

constexpr qint64 kLongEnough = 60'000;

class WriteSessionTest : public ::testing::Test, protected SessionFixture {
protected:
    WriteSessionTest() { doc = validPlan(); }

    QStringList runWrite() {
        EXPECT_TRUE(session.start());
        clock.advanceUntil([&] { return !session.isRunning(); }, kLongEnough);
        EXPECT_FALSE(session.isRunning());
        return prompts.transcript();
    }

    Codeplug doc;
    WriteSession session{transport, doc, prompts, view};
};

TEST_F(WriteSessionTest, WritesTheSettingsEveryChannelAndTheEnd) {
    EXPECT_EQ(runWrite(),
              QStringList({"status: Writing……", "status: Write OK", "box: Write OK | Write OK"}));
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
    const QStringList sent = requestHex();
    ASSERT_EQ(sent.size(), 27);
    EXPECT_EQ(sent.first(), "58 06 00 00 13 00 16 00 87");
    EXPECT_TRUE(sent[1].startsWith("57 0d 00 00 ")) << sent[1].toStdString();
    EXPECT_EQ(sent.last(), "45 00 45");
    EXPECT_TRUE(radio.programmingEnded());
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const QByteArray frame = std::get<QByteArray>(encode_channel(doc, slot));
        EXPECT_EQ(radio.channelRecord(slot), frame.mid(4, frame.size() - 5)) << slot;
    }
    EXPECT_EQ(view.caption, "Write data to Radio");
    EXPECT_EQ(view.progressWhenHidden, 156);
    EXPECT_TRUE(view.buttonsEnabled);
}

TEST_F(WriteSessionTest, EditsMadeWhileTheRecordsGoOutWaitForTheNextWrite) {
    const Codeplug before = doc;
    ASSERT_TRUE(session.start());
    clock.advanceUntil([&] { return requestHex().size() > 3; }, kLongEnough);
    doc.plan[20].rxfreq = doc.plan[20].txfreq = "446.50000";  // a cell edited meanwhile
    clock.advanceUntil([&] { return !session.isRunning(); }, kLongEnough);
    ASSERT_EQ(session.outcome(), SessionOutcome::Succeeded);
    for (const int slot : {0, 20, 24}) {
        const QByteArray frame = std::get<QByteArray>(encode_channel(before, slot));
        EXPECT_EQ(radio.channelRecord(slot), frame.mid(4, frame.size() - 5)) << slot;
    }
}

TEST_F(WriteSessionTest, WhatWasWrittenReadsBackAsTheSamePlan) {
    ASSERT_TRUE(switchMode(doc, 1));  // the professional list, with inverted and custom codes
    doc.plan[2].rxctc = kCdcssText;   // a 13-byte record
    doc.plan[2].rxcdc = "1234567";
    doc.plan[3].rxctc = "Custom";
    doc.plan[3].rxctcfreq = "88.5";
    doc.plan[4].txctc = "I023";
    doc.plan[5].band = "wide";
    doc.plan[6].power = "low";
    doc.chtot = "12";
    RESET_TEXT(doc);
    runWrite();
    ASSERT_EQ(session.outcome(), SessionOutcome::Succeeded);
    EXPECT_TRUE(requestHex()[3].startsWith("57 0f 02 00 ")) << "a 13-byte record";
    EXPECT_EQ(radio.channelRecord(2).size(), 13);

    StartupConfig config;
    config.language = UiLanguage::English;
    Codeplug readBack = buildStartupCodeplug(config);  // normal mode: the read switches it
    ReadSession read(transport, readBack, prompts, view);
    ASSERT_TRUE(read.start());
    clock.advanceUntil([&] { return !read.isRunning(); }, kLongEnough);
    ASSERT_EQ(read.outcome(), SessionOutcome::Succeeded);
    EXPECT_EQ(readBack.chtot, "12");
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const ChannelRecord& a = doc.plan[slot];
        const ChannelRecord& b = readBack.plan[slot];
        EXPECT_EQ(b.rxfreq, a.rxfreq) << slot;
        EXPECT_EQ(b.txfreq, a.txfreq) << slot;
        EXPECT_EQ(b.rxctc, a.rxctc) << slot;
        EXPECT_EQ(b.txctc, a.txctc) << slot;
        EXPECT_EQ(b.band, a.band) << slot;
        EXPECT_EQ(b.power, a.power) << slot;
    }
    EXPECT_EQ(readBack.plan[2].rxcdc, "1234567");
    EXPECT_EQ(readBack.plan[3].rxctcfreq, "88.5");
}

TEST_F(WriteSessionTest, EachFrequencyCheckRefusesTheWriteBeforeAnythingIsSent) {
    const struct {
        const char* name;
        int slot;
        QString ChannelRecord::*field;
        QString value;
        QString message;  // empty: the write goes ahead
    } cases[] = {
        {"empty transmit frequency in slot 24", 24, &ChannelRecord::txfreq, "",
         "Num25Channl Frequency Input error，Please edit again"},
        {"receive frequency of ten characters", 3, &ChannelRecord::rxfreq, "1446.00625",
         "Channl Frequency Input error，Please edit again"},
        {"receive frequency below the band", 7, &ChannelRecord::rxfreq, "399.99999",
         "Num8Channl Frequency Input error，Please edit again"},
        {"receive frequency above the band", 0, &ChannelRecord::rxfreq, "500.00500",
         "Num1Channl Frequency Input error，Please edit again"},
        {"receive frequency at the band's upper end", 0, &ChannelRecord::rxfreq, "500.00000", ""},
        {"transmit frequency is not range-checked", 0, &ChannelRecord::txfreq, "470.00000", ""},
        {"transmit frequency that cannot be encoded", 3, &ChannelRecord::txfreq, "300.00000",
         "Num4Channl Frequency Input error，Please edit again"},
        {"custom tone that does not fit its bytes", 5, &ChannelRecord::rxctcfreq, "7000",
         "Num6Channel Custom Tone Input error，Please edit again"},
        {"an inverted code in normal mode", 9, &ChannelRecord::txctc, "I023",
         "Num10Channel code I023 is not in this mode's code list，Please edit again"},
    };
    for (const auto& c : cases) {
        SessionFixture world;
        Codeplug plan = validPlan();
        plan.plan[c.slot].*c.field = c.value;
        WriteSession write(world.transport, plan, world.prompts, world.view);
        const bool started = write.start();
        EXPECT_EQ(started, c.message.isEmpty()) << c.name;
        world.clock.advanceUntil([&] { return !write.isRunning(); }, kLongEnough);
        if (!c.message.isEmpty()) {
            EXPECT_EQ(world.prompts.transcript(),
                      QStringList({QStringLiteral("box: %1 | NOTE | warning").arg(c.message)}))
                << c.name;
            EXPECT_TRUE(world.requests.empty()) << c.name;
            EXPECT_TRUE(world.view.buttonsEnabled) << c.name;
        } else {
            EXPECT_EQ(write.outcome(), SessionOutcome::Succeeded) << c.name;
        }
    }
}

TEST_F(WriteSessionTest, RepeatsTheSettingsRecordEveryFiveSecondsUntilAnswered) {
    SimFaults faults;
    faults.silent = {1, 2};
    radio.setFaults(faults);
    runWrite();
    EXPECT_EQ(session.outcome(), SessionOutcome::Succeeded);
    EXPECT_EQ(requestsWithCommand('X'), 3);
    EXPECT_EQ(requests[1].first - requests[0].first, 5020);
    EXPECT_EQ(requests[2].first - requests[1].first, 5020);
}

TEST_F(WriteSessionTest, TheRadioNotAnsweringEndsTheWriteWithoutTheEndRequest) {
    const struct {
        const char* name;
        int silentRequest;  // 0: every request
        int channelsWritten;
    } cases[] = {
        {"silent at the opening", 0, 0},
        {"silent at channel 5", 7, 5},  // request 1 is "X", request k + 2 the "W" of slot k
    };
    for (const auto& c : cases) {
        SessionFixture world;
        Codeplug plan = validPlan();
        WriteSession write(world.transport, plan, world.prompts, world.view);
        SimFaults faults;
        faults.silentAlways = c.silentRequest == 0;
        if (c.silentRequest) faults.silent = {c.silentRequest};
        world.radio.setFaults(faults);
        ASSERT_TRUE(write.start());
        world.clock.advanceUntil([&] { return !write.isRunning(); }, kLongEnough);
        EXPECT_EQ(write.outcome(), SessionOutcome::TimedOut) << c.name;
        EXPECT_EQ(world.prompts.transcript(),
                  QStringList({"status: Writing……", "status: Transmission ERROR",
                               "box: Transmission Error，Check Radio | NOTE", "status: COM"}))
            << c.name;
        world.clock.advance(kLongEnough);  // whatever was still on its way has arrived
        EXPECT_EQ(world.requestsWithCommand('E'), 0) << c.name;
        EXPECT_EQ(world.requestsWithCommand('X'), c.silentRequest == 0 ? 3 : 1) << c.name;
        EXPECT_EQ(world.requestsWithCommand('W'), c.silentRequest == 0 ? 0 : 6) << c.name;
        for (int slot = 0; slot < c.channelsWritten; ++slot) {
            EXPECT_EQ(world.radio.channelRecord(slot).mid(0, 2),
                      std::get<QByteArray>(encode_channel(plan, slot)).mid(4, 2))
                << c.name << " slot " << slot;
        }
    }
}

TEST_F(WriteSessionTest, ClosingTheProgressWindowDuringChannelSevenCancels) {
    ASSERT_TRUE(session.start());
    clock.advanceUntil([&] { return requestsWithCommand('W') == 8; }, kLongEnough);
    session.cancel();
    EXPECT_EQ(session.outcome(), SessionOutcome::Cancelled);
    EXPECT_EQ(prompts.transcript(),
              QStringList({"status: Writing……", "box: Write Error，Please Check | NOTE | warning",
                           "status: Write ERROR"}));
    EXPECT_TRUE(view.buttonsEnabled);
    EXPECT_FALSE(view.progressShown);
    clock.advance(kLongEnough);
    EXPECT_EQ(requestsWithCommand('W'), 8);
    EXPECT_EQ(requestsWithCommand('E'), 0);
}

TEST_F(WriteSessionTest, AHangUpEndsTheWriteAndClosesThePort) {
    SimFaults faults;
    faults.hangUpAt = 4;
    radio.setFaults(faults);
    EXPECT_EQ(runWrite(), QStringList({"status: Writing……", "status: Transmission ERROR",
                                       "box: Transmission Error，Check Radio | NOTE", "status: COM",
                                       "status: COM Closed"}));
    EXPECT_FALSE(port.isOpen());
    clock.advance(kLongEnough);
    EXPECT_EQ(requestsWithCommand('E'), 0);
}

}  // namespace
