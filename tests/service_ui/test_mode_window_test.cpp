#include "service/ui/test_mode_window.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "service/crystal_panel.h"
#include "service_window_fixture.h"

namespace {

class TestModeWindowTest : public ServiceWindowTest {
protected:
    TestModeWindowTest() { window->show(); }

    QString text(const char* name) { return find<QLineEdit>(*window, name)->text(); }
    QPushButton* button(const char* name) { return find<QPushButton>(*window, name); }
    QColor indicator() {
        return find<QFrame>(*window, "Shape1")->palette().color(QPalette::Window);
    }
    // Waits until the display `name` shows a value other than `before`.
    bool changes(const char* name, const QString& before) {
        return QTest::qWaitFor([&] { return text(name) != before; }, 5'000);
    }
    SimProduction& radio() { return port->radio().production(); }

    std::unique_ptr<TestModeWindow> window = std::make_unique<TestModeWindow>(channel);
};

TEST_F(TestModeWindowTest, TheRssiDisplaysFollowTheRadioUntilTheWindowCloses) {
    EXPECT_EQ(window->windowTitle(), "Test mode");
    for (const char* name : {"Text1", "Text2", "Text3", "Text4"}) EXPECT_EQ(text(name), "0");
    EXPECT_EQ(find<QComboBox>(*window, "Combo1")->currentText(), "DTMF 发射测试");

    QTest::mouseClick(button("Command1"), Qt::LeftButton);
    ASSERT_TRUE(changes("Text1", "0"));
    // Live: the values keep changing.
    const QString first = text("Text1") + text("Text2") + text("Text4");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return text("Text1") + text("Text2") + text("Text4") != first; }, 5'000));
    EXPECT_NE(text("Text3"), "0");
    EXPECT_EQ(window->monitor(), MonitorMode::Rssi);

    // Closing the window tells the radio to stop.
    window->close();
    ASSERT_TRUE(QTest::qWaitFor([&] { return radio().monitorMode() == 0; }, 5'000));
    const int sent = radio().framesSent();
    QTest::qWait(600);
    EXPECT_EQ(radio().framesSent(), sent);
    EXPECT_TRUE(prompts.boxes.isEmpty());
}

TEST_F(TestModeWindowTest, TheChargingIndicatorIsRedWhileChargingAndGreenOtherwise) {
    QTest::mouseClick(button("Command3"), Qt::LeftButton);
    ASSERT_TRUE(changes("Text5", "0"));
    EXPECT_EQ(indicator(), QColor(0, 255, 0));
    // The simulated charger comes on after a few seconds.
    ASSERT_TRUE(QTest::qWaitFor([&] { return indicator() == QColor(255, 0, 0); }, 8'000));
    QTest::mouseClick(button("Command4"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return radio().monitorMode() == 0; }, 5'000));
}

TEST_F(TestModeWindowTest, AnotherPanelsExchangeEndsTheLiveDisplay) {
    QTest::mouseClick(button("Command1"), Qt::LeftButton);
    ASSERT_TRUE(changes("Text1", "0"));
    CrystalPanel crystal(channel);
    ASSERT_TRUE(crystal.read());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !crystal.isRunning(); }, 10'000));
    EXPECT_EQ(crystal.outcome(), ServiceOutcome::Succeeded);
    EXPECT_FALSE(find<QLabel>(*window, "liveState")->text().isEmpty());
    EXPECT_EQ(window->monitor(), MonitorMode::Stop);
    const QString frozen = text("Text1") + text("Text2") + text("Text3") + text("Text4");
    QTest::qWait(600);
    EXPECT_EQ(text("Text1") + text("Text2") + text("Text3") + text("Text4"), frozen);

    // Started again, it is live again.
    QTest::mouseClick(button("Command1"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return radio().monitorMode() == 1; }, 5'000));
    EXPECT_TRUE(find<QLabel>(*window, "liveState")->text().isEmpty());
}

TEST_F(TestModeWindowTest, TheDtmfTestOfTheChosenType) {
    find<QComboBox>(*window, "Combo1")->setCurrentIndex(1);
    ASSERT_TRUE(press(button("Command5")));
    EXPECT_EQ(lastBox(), "测试模式 写 OK!! | 测试模式选择");
    EXPECT_EQ(radio().dtmfTest(), 2);
    ASSERT_TRUE(press(button("Command6")));
    EXPECT_EQ(radio().dtmfTest(), 0);
}

}  // namespace
