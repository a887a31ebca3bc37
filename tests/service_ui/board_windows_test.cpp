#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "service/ui/hardware_window.h"
#include "service/ui/volume_window.h"
#include "service_window_fixture.h"

namespace {

class HardwareWindowTest : public ServiceWindowTest {
protected:
    HardwareWindowTest() { window.show(); }

    QComboBox* pins() { return find<QComboBox>(window, "Combo1"); }
    QComboBox* thresholds() { return find<QComboBox>(window, "Combo2"); }
    QPushButton* button(const char* name) { return find<QPushButton>(window, name); }
    SimHardwareVolume& sim() { return port->radio().service().hardwareVolume(); }

    HardwareWindow window{channel};
};

TEST_F(HardwareWindowTest, ShowsBothListsAndWritesWhatIsChosen) {
    EXPECT_EQ(window.windowTitle(), "硬件选择");
    EXPECT_EQ(pins()->currentText(), "P2.4");
    EXPECT_EQ(thresholds()->count(), 11);
    EXPECT_EQ(thresholds()->currentText(), "2.40");

    pins()->setCurrentIndex(1);
    thresholds()->setCurrentIndex(3);
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(lastBox(), "硬件选择 写 OK!! | 硬件选择");
    EXPECT_EQ(sim().pttPin(), 255);
    EXPECT_EQ(sim().thresholdIndex(), 3);
    EXPECT_EQ(sim().thresholdCount(), 652);

    pins()->setCurrentIndex(0);
    thresholds()->setCurrentIndex(0);
    ASSERT_TRUE(press(button("Command1")));
    EXPECT_EQ(lastBox(), "硬件选择 读 OK!! | 硬件选择");
    EXPECT_EQ(pins()->currentText(), "P2.1");
    EXPECT_EQ(thresholds()->currentText(), "2.10");
}

TEST_F(HardwareWindowTest, TypedTextsCountAsNoItem) {
    // A pin typed that the list lacks goes out as 255; a threshold the list lacks is refused.
    pins()->setEditText("P9.9");
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(sim().pttPin(), 255);

    thresholds()->setEditText("2.05");
    prompts.boxes.clear();
    QTest::mouseClick(button("Command2"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_TRUE(prompts.boxes[0].text.startsWith("Pkey ad door：请从 2.40"))
        << prompts.boxes[0].text.toStdString();
    EXPECT_EQ(sim().thresholdIndex(), 0);
}

TEST_F(HardwareWindowTest, ARadioThresholdOutsideTheListShowsEmpty) {
    sim().setHardware(0, 12);
    ASSERT_TRUE(press(button("Command1")));
    EXPECT_EQ(thresholds()->currentText(), "");
    prompts.boxes.clear();
    QTest::mouseClick(button("Command2"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_EQ(prompts.boxes[0].title, "硬件选择");
    EXPECT_EQ(sim().thresholdIndex(), 12);
    // A valid choice makes the write go out.
    thresholds()->setCurrentIndex(10);
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(sim().thresholdIndex(), 10);
}

TEST_F(ServiceWindowTest, VolumeWindowRoundTripsItsTenValues) {
    VolumeWindow window(channel);
    window.show();
    EXPECT_EQ(window.windowTitle(), "Volume");
    auto* mic = find<QLineEdit>(window, "Text9");
    auto* step1 = find<QLineEdit>(window, "Text1");
    auto* step1Slider = find<QScrollBar>(window, "HScroll1");
    auto* pmicSlider = find<QScrollBar>(window, "HScroll10");
    EXPECT_EQ(mic->text(), "10");
    EXPECT_EQ(find<QLineEdit>(window, "Text8")->text(), "22");
    EXPECT_EQ(pmicSlider->maximum(), 63);

    // Typed beyond the slider: sent as typed, the slider at its end.
    step1->selectAll();
    QTest::keyClicks(step1, "40");
    EXPECT_EQ(step1Slider->value(), 40);
    pmicSlider->setValue(7);
    EXPECT_EQ(find<QLineEdit>(window, "Text10")->text(), "7");
    ASSERT_TRUE(press(find<QPushButton>(window, "Command2")));
    EXPECT_EQ(lastBox(), "OK | 调整");
    EXPECT_EQ(port->radio().service().hardwareVolume().volumeRecord().toHex(),
              "0a28080a0c0e10121607");

    step1Slider->setValue(1);
    ASSERT_TRUE(press(find<QPushButton>(window, "Command1")));
    EXPECT_EQ(lastBox(), "读取 OK | ");
    EXPECT_EQ(step1->text(), "40");
    EXPECT_EQ(pmicSlider->value(), 7);

    step1->selectAll();
    QTest::keyClicks(step1, "300");
    EXPECT_EQ(step1Slider->value(), 63);
    prompts.boxes.clear();
    QTest::mouseClick(find<QPushButton>(window, "Command2"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_TRUE(prompts.boxes[0].text.startsWith("Vol01：“300”"))
        << prompts.boxes[0].text.toStdString();
}

TEST_F(ServiceWindowTest, PlayerWindowRoundTripsItsEightSteps) {
    PlayerWindow window(channel);
    window.show();
    ASSERT_NE(window.findChild<QGroupBox*>(), nullptr);
    EXPECT_EQ(window.findChild<QGroupBox*>()->title(), "Mp3 VOL");
    EXPECT_EQ(find<QScrollBar>(window, "HScroll8")->maximum(), 31);
    EXPECT_EQ(find<QLineEdit>(window, "Text8")->text(), "31");
    find<QScrollBar>(window, "HScroll2")->setValue(2);
    ASSERT_TRUE(press(find<QPushButton>(window, "Command2")));
    EXPECT_EQ(lastBox(), "Mp3 写 OK!! | Mp3");
    EXPECT_EQ(port->radio().service().hardwareVolume().playerLevels().toHex(), "03020b0f13171b1f");

    find<QScrollBar>(window, "HScroll2")->setValue(20);
    ASSERT_TRUE(press(find<QPushButton>(window, "Command1")));
    EXPECT_EQ(lastBox(), "Mp3 OK!! | Mp3");
    EXPECT_EQ(find<QLineEdit>(window, "Text2")->text(), "2");
}

}  // namespace
