#include "service/ui/calibration_window.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "service/ui/band_window.h"
#include "service_window_fixture.h"

namespace {

class CalibrationWindowTest : public ServiceWindowTest {
protected:
    CalibrationWindowTest() { window.show(); }

    QLineEdit* text(int n) { return find<QLineEdit>(window, ("Text" + std::to_string(n)).c_str()); }
    QScrollBar* slider(int n) {
        return find<QScrollBar>(window, ("HScroll" + std::to_string(n)).c_str());
    }
    QPushButton* button(const char* name) { return find<QPushButton>(window, name); }
    void type(int n, const QString& value) {
        text(n)->selectAll();
        QTest::keyClick(text(n), Qt::Key_Backspace);
        QTest::keyClicks(text(n), value);
    }
    QStringList boxes() {
        QStringList shown;
        for (int n = 1; n <= 7; ++n) shown << text(n)->text();
        return shown;
    }

    CalibrationWindow window{channel, prompts};
};

TEST_F(CalibrationWindowTest, StartsAtTheInitialValuesWithCaptionsInTheChannelsLanguage) {
    EXPECT_EQ(window.windowTitle(), "工程模式");
    EXPECT_EQ(boxes(), QStringList({"42", "40", "70", "35", "26", "53", "53"}));
    const int ranges[][2] = {{10, 254}, {10, 254}, {0, 128}, {0, 128},
                             {0, 128},  {0, 254},  {0, 254}};
    for (int n = 1; n <= 7; ++n) {
        EXPECT_EQ(slider(n)->minimum(), ranges[n - 1][0]) << n;
        EXPECT_EQ(slider(n)->maximum(), ranges[n - 1][1]) << n;
    }
    slider(5)->setValue(100);
    EXPECT_EQ(text(5)->text(), "100");

    EXPECT_EQ(button("Command1")->text(), "数据读取");
    EXPECT_EQ(button("Command2")->text(), "调整");
    channel.setLanguage(UiLanguage::English);
    EXPECT_EQ(button("Command1")->text(), "Read");
    EXPECT_EQ(button("Command2")->text(), "Write");
    EXPECT_EQ(button("Command3")->text(), "频段信息");
    QStringList frames;
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>()) frames << frame->title();
    EXPECT_EQ(frames, QStringList({"RSSI", "Power DA", "Noise调整"}));
    EXPECT_EQ(window.windowTitle(), "工程模式");
}

TEST_F(CalibrationWindowTest, WhatTheBoxesHoldIsWrittenAndReadBack) {
    // Typed into the box without moving the slider: the box is what is sent.
    type(1, "100");
    type(3, "200");  // beyond the slider, but a byte
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(lastBox(), "OK | 调整");
    EXPECT_EQ(port->radio().service().calibrationRecord().toHex(), "c823642880003535");

    slider(1)->setValue(10);
    slider(3)->setValue(0);
    slider(5)->setValue(77);
    ASSERT_TRUE(press(button("Command1")));
    EXPECT_EQ(lastBox(), "读取 OK | ");
    // As received in the box; the slider stops at the end of its range; RX PWM is left alone.
    EXPECT_EQ(boxes(), QStringList({"100", "40", "200", "35", "77", "53", "53"}));
    EXPECT_EQ(slider(1)->value(), 100);
    EXPECT_EQ(slider(3)->value(), 128);
}

TEST_F(CalibrationWindowTest, ABoxThatIsNotAByteIsRefusedNamingItsField) {
    struct Case {
        int box;
        const char* typed;
        const char* field;
    };
    for (const Case& c :
         {Case{3, "256", "TX PWM(大功率)"}, Case{2, "x", "RSSI宽带"}, Case{7, "", "Noise宽带"}}) {
        SCOPED_TRACE(c.typed);
        type(c.box, QString::fromUtf8(c.typed));
        prompts.boxes.clear();
        QTest::mouseClick(button("Command2"), Qt::LeftButton);
        ASSERT_EQ(prompts.boxes.size(), 1);
        EXPECT_TRUE(prompts.boxes[0].text.startsWith(QString::fromUtf8(c.field)))
            << prompts.boxes[0].text.toStdString();
        EXPECT_EQ(prompts.boxes[0].title, "调整");
        EXPECT_TRUE(button("Command2")->isEnabled());
        type(c.box, "1");
    }
    EXPECT_EQ(port->radio().requestCount(), 0);
}

TEST_F(CalibrationWindowTest, TheVersionTextComesAsLinesInOneBox) {
    ASSERT_TRUE(press(button("Command4")));
    EXPECT_EQ(lastBox(), "SIM RADIO V1.0\nFW 19.0.13 | ");
}

TEST_F(CalibrationWindowTest, ASilentRadioGivesEachOperationsFailure) {
    SimFaults faults;
    faults.silentAlways = true;
    port->radio().setFaults(faults);
    struct Case {
        const char* button;
        const char* box;
    };
    for (const Case& c : {Case{"Command1", "读取超时 | "}, Case{"Command2", "通讯失败 | "},
                          Case{"Command4", "REG 读 出错!! | RF Reg"}}) {
        SCOPED_TRACE(c.button);
        QTest::mouseClick(button(c.button), Qt::LeftButton);
        for (const char* b : {"Command1", "Command2", "Command4"}) {
            EXPECT_FALSE(button(b)->isEnabled()) << b;
        }
        ASSERT_TRUE(QTest::qWaitFor([&] { return button(c.button)->isEnabled(); }, 15'000));
        EXPECT_EQ(lastBox(), QString::fromUtf8(c.box));
    }
    EXPECT_EQ(boxes(), QStringList({"42", "40", "70", "35", "26", "53", "53"}));
}

TEST_F(CalibrationWindowTest, TheBandButtonOpensOneBandWindow) {
    QTest::mouseClick(button("Command3"), Qt::LeftButton);
    QTest::mouseClick(button("Command3"), Qt::LeftButton);
    const QList<BandWindow*> opened = window.findChildren<BandWindow*>();
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0]->objectName(), "Form12");
    EXPECT_TRUE(opened[0]->isVisible());
    EXPECT_TRUE(window.isVisible());
    opened[0]->close();
    QTest::mouseClick(button("Command3"), Qt::LeftButton);
    EXPECT_EQ(window.findChildren<BandWindow*>().size(), 1);
    EXPECT_TRUE(opened[0]->isVisible());
}

}  // namespace
