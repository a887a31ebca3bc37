#include "service/ui/crystal_window.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "service_window_fixture.h"

namespace {

class CrystalWindowTest : public ServiceWindowTest {
protected:
    CrystalWindowTest() { window.show(); }

    QLineEdit* text() { return find<QLineEdit>(window, "Text1"); }
    QScrollBar* slider() { return find<QScrollBar>(window, "HScroll1"); }
    QPushButton* readButton() { return find<QPushButton>(window, "Command1"); }
    QPushButton* writeButton() { return find<QPushButton>(window, "Command2"); }
    void type(const QString& value) {
        text()->selectAll();
        QTest::keyClicks(text(), value);
    }

    CrystalWindow window{channel};
};

TEST_F(CrystalWindowTest, StartsAtZeroOnTheFullSignedRange) {
    EXPECT_EQ(window.windowTitle(), "RF 晶体修正");
    EXPECT_EQ(text()->text(), "0");
    EXPECT_EQ(slider()->minimum(), -127);
    EXPECT_EQ(slider()->maximum(), 127);
    slider()->setValue(-40);
    EXPECT_EQ(text()->text(), "-40");
}

TEST_F(CrystalWindowTest, WhatIsWrittenIsReadBackIntoBoxAndSlider) {
    type("-5");
    EXPECT_EQ(slider()->value(), -5);
    QTest::mouseClick(writeButton(), Qt::LeftButton);
    EXPECT_FALSE(readButton()->isEnabled());
    EXPECT_FALSE(writeButton()->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return writeButton()->isEnabled(); }, 10'000));
    EXPECT_EQ(lastBox(), "晶体修正 写 OK!! | 晶体修正");
    EXPECT_EQ(port->radio().service().crystalTrim(), -5);

    slider()->setValue(100);
    ASSERT_TRUE(press(readButton()));
    EXPECT_EQ(lastBox(), "读 OK!! | 晶体修正");
    EXPECT_EQ(text()->text(), "-5");
    EXPECT_EQ(slider()->value(), -5);
}

TEST_F(CrystalWindowTest, ATextThatDoesNotFitIsRefusedBeforeSending) {
    struct Case {
        const char* typed;
        int slider;  // where the slider stands after typing
    };
    for (const Case& c : {Case{"200", 127}, Case{"-128", -127}, Case{"abc", 0}}) {
        SCOPED_TRACE(c.typed);
        slider()->setValue(0);
        type(QString::fromUtf8(c.typed));
        EXPECT_EQ(text()->text(), QString::fromUtf8(c.typed));
        EXPECT_EQ(slider()->value(), c.slider);
        prompts.boxes.clear();
        QTest::mouseClick(writeButton(), Qt::LeftButton);
        ASSERT_EQ(prompts.boxes.size(), 1);
        EXPECT_TRUE(prompts.boxes[0].text.contains(QString::fromUtf8(c.typed)))
            << prompts.boxes[0].text.toStdString();
        EXPECT_EQ(prompts.boxes[0].title, "晶体修正");
        EXPECT_TRUE(writeButton()->isEnabled());
    }
    EXPECT_EQ(port->radio().service().crystalTrim(), 0);
}

TEST_F(CrystalWindowTest, ASilentRadioGivesTheReadErrorAndFreesTheButtons) {
    SimFaults faults;
    faults.silentAlways = true;
    port->radio().setFaults(faults);
    ASSERT_TRUE(press(readButton()));
    EXPECT_EQ(lastBox(), "晶体修正 读 出错!! | 晶体修正");
    EXPECT_EQ(text()->text(), "0");
}

}  // namespace
