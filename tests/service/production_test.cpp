// The production-line panels: the identity's bytes and numbering, the monitor frames, and the
// exchanges with the simulated radio on the manual clock.

#include <gtest/gtest.h>

#include "panel_fixture.h"
#include "service/crystal_panel.h"
#include "service/identity.h"
#include "service/identity_panel.h"
#include "service/test_mode_panel.h"

namespace {

QString hex(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toHex(' '));
}

TEST(IdentityBytes, TheNumberGoesMostSignificantFirstAndTheNextOneFollows) {
    const struct {
        quint32 id;
        const char* frame;
        quint32 next;
    } cases[] = {
        {305419896, "5a 04 12 34 56 78 72", 305419897},
        {4294967295u, "5a 04 ff ff ff ff 5a", 0},
        {0, "5a 04 00 00 00 00 5e", 1},
        {65536, "5a 04 00 01 00 00 5f", 65537},
        {256, "5a 04 00 00 01 00 5f", 257},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(hex(identityWriteRequest(c.id)), c.frame) << c.id;
        EXPECT_EQ(nextIdentity(c.id), c.next) << c.id;
        // What the radio reads back is the number written.
        EXPECT_EQ(decodeIdentity(identityWriteRequest(c.id).mid(2, 4)), c.id);
    }
    EXPECT_EQ(hex(identityReadRequest()), "5b 03 00 00 00 5e");
    EXPECT_EQ(decodeIdentity(QByteArray::fromHex("00003039")), 12345u);
    EXPECT_EQ(decodeIdentity(QByteArray::fromHex("000030")), std::nullopt);
}

TEST(IdentityBytes, OnlyADecimalNumberThatFitsIsAccepted) {
    const struct {
        const char* text;
        std::optional<quint32> value;
    } cases[] = {
        {"4294967295", 4294967295u}, {" 0042 ", 42},
        {"", std::nullopt},          {"4294967296", std::nullopt},
        {"-1", std::nullopt},        {"12a", std::nullopt},
        {"1e3", std::nullopt},       {"99999999999999999999999", std::nullopt},
    };
    for (const auto& c : cases) {
        const IdentityField field = identityField(QString::fromLatin1(c.text), UiLanguage::English);
        EXPECT_EQ(field.ok(), c.value.has_value()) << c.text;
        if (c.value) {
            EXPECT_EQ(field.value, *c.value) << c.text;
        } else {
            EXPECT_EQ(field.error, "ID error，Please Check again") << c.text;
        }
    }
}

TEST(MonitorFrames, MeasurementsAreDecodedUnsigned) {
    const struct {
        const char* payload;
        std::optional<QString> line;
    } cases[] = {
        {"012a001001f005", "rssi=42 snr=16 afc=496 audio=5"},
        {"020101f4", "charging=1 battery=500"},
        {"020001f4", "charging=0 battery=500"},
        // Any flag but 1 is not charging; high bytes of 128 or more are large counts.
        {"0202fffe", "charging=0 battery=65534"},
        {"01ff80008001ff", "rssi=255 snr=32768 afc=32769 audio=255"},
        // Other kinds, and frames too short to carry their values, show nothing.
        {"03010203", std::nullopt},
        {"012a0010", std::nullopt},
        {"0201", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& c : cases) {
        const std::optional<MonitorFrame> frame =
            decodeMonitorFrame(QByteArray::fromHex(c.payload));
        ASSERT_EQ(frame.has_value(), c.line.has_value()) << c.payload;
        if (frame) {
            EXPECT_EQ(monitorValueLine(*frame), *c.line) << c.payload;
        }
    }
}

TEST(MonitorFrames, TheTestRequests) {
    const struct {
        QByteArray frame;
        const char* bytes;
    } cases[] = {
        {monitorRequest(MonitorMode::Rssi), "55 01 01 57"},
        {monitorRequest(MonitorMode::Battery), "55 01 02 58"},
        {monitorRequest(MonitorMode::Stop), "55 01 00 56"},
        {testModeRequest(DtmfTest::Transmit, {}), "66 05 00 00 01 00 00 6c"},
        {testModeRequest(DtmfTest::Receive, {}), "66 05 00 00 02 00 00 6d"},
        {testModeRequest(DtmfTest::Stop, {}), "66 05 00 00 00 00 00 6b"},
    };
    for (const auto& c : cases) EXPECT_EQ(hex(c.frame), c.bytes);
}

class ProductionPanelsTest : public ServicePanelFixture {
protected:
    SimProduction& production() { return radio.production(); }
};

TEST_F(ProductionPanelsTest, WritingNumbersOneRadioAfterTheOther) {
    IdentityPanel panel(channel);
    panel.identity = "4294967293";
    const quint32 expected[] = {4294967293u, 4294967294u, 4294967295u, 0, 1};
    for (int radio = 0; radio < 5; ++radio) {
        EXPECT_EQ(run(panel, [&] { return panel.write(); }), QStringList());
        EXPECT_EQ(production().identity(), expected[radio]);
        EXPECT_EQ(panel.mark, IdentityPanel::Mark::Accepted);
    }
    EXPECT_EQ(panel.identity, "2");
    EXPECT_EQ(panel.successes, 5);

    EXPECT_EQ(run(panel, [&] { return panel.read(); }), QStringList{"box: Read OK | "});
    EXPECT_EQ(panel.identity, "1");
    EXPECT_EQ(panel.successes, 5);
}

TEST_F(ProductionPanelsTest, AWriteThatCannotBeDoneNumbersNothing) {
    IdentityPanel panel(channel);
    const struct {
        const char* identity;
        bool portOpen;
        bool radioSilent;
        QStringList shown;
        size_t sent;
    } cases[] = {
        {"", true, false, {"box: ID error，Please Check again | NOTE | warning"}, 0},
        {"4294967296", true, false, {"box: ID error，Please Check again | NOTE | warning"}, 0},
        {"7", false, false, {"box: Please check COM Port | "}, 0},
        {"7", true, true, {"status: Transmission ERROR", "box: Transmission ERROR | "}, 3},
    };
    for (const auto& c : cases) {
        requests.clear();
        panel.identity = c.identity;
        if (!c.portOpen) port.close();
        SimFaults faults;
        faults.silentAlways = c.radioSilent;
        radio.setFaults(faults);
        EXPECT_EQ(run(panel, [&] { return panel.write(); }), c.shown) << c.identity;
        EXPECT_EQ(requests.size(), c.sent) << c.identity;
        EXPECT_EQ(panel.mark, IdentityPanel::Mark::Refused);
        EXPECT_EQ(panel.identity, c.identity);
        EXPECT_EQ(panel.successes, 0);
        if (!c.portOpen) port.open(SimulatedPort::kDefaultDevice);
    }
    EXPECT_EQ(production().identity(), 0u);
}

TEST_F(ProductionPanelsTest, TheMonitorStreamsUntilItIsStopped) {
    TestModePanel panel(channel);
    QList<MonitorFrame> frames;
    QObject::connect(&panel, &TestModePanel::measured,
                     [&](const MonitorFrame& frame) { frames << frame; });
    run(panel, [&] { return panel.startMonitor(MonitorMode::Rssi); });
    EXPECT_EQ(hex(requests.back().second), "55 01 01 57");
    EXPECT_EQ(panel.monitor(), MonitorMode::Rssi);
    clock.advance(2000);
    // About five a second, and a live receiver's values change.
    EXPECT_GE(frames.size(), 9);
    EXPECT_LE(frames.size(), 11);
    QSet<int> rssiSeen;
    for (const MonitorFrame& frame : frames) {
        EXPECT_EQ(frame.kind, MonitorMode::Rssi);
        rssiSeen.insert(frame.rssi.rssi);
    }
    EXPECT_GT(rssiSeen.size(), 3);
    EXPECT_EQ(panel.rssi, frames.back().rssi);

    EXPECT_EQ(run(panel, [&] { return panel.stopMonitor(); }), QStringList());
    EXPECT_EQ(hex(requests.back().second), "55 01 00 56");
    const qsizetype shown = frames.size();
    clock.advance(2000);
    EXPECT_EQ(frames.size(), shown);
    EXPECT_EQ(production().monitorMode(), 0);
    EXPECT_EQ(panel.monitor(), MonitorMode::Stop);
}

TEST_F(ProductionPanelsTest, TheBatteryMonitorShowsTheChargerComingAndGoing) {
    TestModePanel panel(channel);
    QList<bool> charging;
    QObject::connect(&panel, &TestModePanel::measured,
                     [&](const MonitorFrame& frame) { charging << frame.battery.charging; });
    run(panel, [&] { return panel.startMonitor(MonitorMode::Battery); });
    clock.advance(10'000);
    ASSERT_TRUE(panel.battery.has_value());
    EXPECT_TRUE(charging.contains(true));
    EXPECT_TRUE(charging.contains(false));
    EXPECT_GT(panel.battery->value, 0);
    run(panel, [&] { return panel.stopMonitor(); });
}

TEST_F(ProductionPanelsTest, AnotherPanelsExchangeEndsTheMonitor) {
    TestModePanel panel(channel);
    std::vector<std::pair<MonitorMode, bool>> changes;
    QObject::connect(&panel, &TestModePanel::liveChanged,
                     [&](MonitorMode mode, bool byOther) { changes.emplace_back(mode, byOther); });
    int frames = 0;
    QObject::connect(&panel, &TestModePanel::measured, [&] { ++frames; });
    run(panel, [&] { return panel.startMonitor(MonitorMode::Rssi); });
    clock.advance(1000);
    ASSERT_GT(frames, 0);

    // The crystal read gets its reply although the radio was streaming.
    CrystalPanel crystal(channel);
    EXPECT_EQ(run(crystal, [&] { return crystal.read(); }), QStringList{"box: 读 OK!! | 晶体修正"});
    EXPECT_EQ(changes, (std::vector<std::pair<MonitorMode, bool>>{{MonitorMode::Rssi, false},
                                                                  {MonitorMode::Stop, true}}));
    EXPECT_EQ(panel.monitor(), MonitorMode::Stop);
    const int shown = frames;
    clock.advance(2000);
    EXPECT_EQ(frames, shown);
    EXPECT_FALSE(channel.monitorActive());
}

TEST_F(ProductionPanelsTest, ALostPortEndsTheMonitor) {
    TestModePanel panel(channel);
    std::vector<std::pair<MonitorMode, bool>> changes;
    QObject::connect(&panel, &TestModePanel::liveChanged,
                     [&](MonitorMode mode, bool byOther) { changes.emplace_back(mode, byOther); });
    run(panel, [&] { return panel.startMonitor(MonitorMode::Battery); });
    clock.advance(500);
    ASSERT_TRUE(panel.battery.has_value());
    Q_EMIT port.failed(QStringLiteral("unplugged"));
    EXPECT_EQ(changes, (std::vector<std::pair<MonitorMode, bool>>{{MonitorMode::Battery, false},
                                                                  {MonitorMode::Stop, true}}));
    // A start with the port gone says so and does not count as live.
    EXPECT_EQ(run(panel, [&] { return panel.startMonitor(MonitorMode::Rssi); }),
              QStringList{"box: Please check COM Port | NOTE | warning"});
    EXPECT_EQ(panel.monitor(), MonitorMode::Stop);
    EXPECT_EQ(panel.outcome(), ServiceOutcome::Failed);
    EXPECT_FALSE(channel.monitorActive());
}

TEST_F(ProductionPanelsTest, TheDtmfTestsStartAndStop) {
    TestModePanel panel(channel);
    const struct {
        std::function<bool()> press;
        int running;
        const char* sent;
    } cases[] = {
        {[&] { return panel.startTest(0); }, 1, "66 05 00 00 01 00 00 6c"},
        {[&] { return panel.startTest(1); }, 2, "66 05 00 00 02 00 00 6d"},
        {[&] { return panel.stopTest(); }, 0, "66 05 00 00 00 00 00 6b"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(run(panel, c.press), QStringList{"box: 测试模式 写 OK!! | 测试模式选择"});
        EXPECT_EQ(production().dtmfTest(), c.running);
        EXPECT_EQ(hex(requests.back().second), c.sent);
    }
    SimFaults faults;
    faults.silentAlways = true;
    radio.setFaults(faults);
    EXPECT_EQ(run(panel, [&] { return panel.startTest(0); }),
              QStringList{"box: 测试模式 写 出错!! | 测试模式选择"});
}

}  // namespace
