#include "service/ui/identity_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "service_window_fixture.h"

namespace {

class IdentityWindowTest : public ServiceWindowTest {
protected:
    IdentityWindowTest() { window.show(); }

    QLineEdit* number() { return find<QLineEdit>(window, "Text1"); }
    QLineEdit* counter() { return find<QLineEdit>(window, "Text2"); }
    QPushButton* writeButton() { return find<QPushButton>(window, "Command1"); }
    QPushButton* readButton() { return find<QPushButton>(window, "Command2"); }
    QColor numberColour() { return number()->palette().color(QPalette::Text); }
    void type(const QString& value) {
        number()->selectAll();
        QTest::keyClick(number(), Qt::Key_Backspace);
        QTest::keyClicks(number(), value);
    }
    // Presses "写ID" and waits for the radio's answer.
    bool writeOnce() {
        const QString before = counter()->text();
        QTest::mouseClick(writeButton(), Qt::LeftButton);
        return QTest::qWaitFor(
            [&] { return writeButton()->isEnabled() && counter()->text() != before; }, 10'000);
    }

    IdentityWindow window{channel};
};

TEST_F(IdentityWindowTest, EachWriteNumbersTheNextRadioWithOneKeyPress) {
    EXPECT_EQ(window.windowTitle(), "输入ID");
    EXPECT_EQ(number()->text(), "0");
    EXPECT_EQ(counter()->text(), "0");
    type("4294967294");
    ASSERT_TRUE(writeOnce());
    EXPECT_EQ(port->radio().production().identity(), 4294967294u);
    EXPECT_EQ(number()->text(), "4294967295");
    EXPECT_EQ(counter()->text(), "1");
    EXPECT_EQ(numberColour(), QColor(0, 255, 0));
    EXPECT_EQ(window.focusWidget(), writeButton());
    EXPECT_TRUE(prompts.boxes.isEmpty()) << "a numbered radio needs no box";

    // The next radio: one key press.
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return counter()->text() == "2"; }, 10'000));
    EXPECT_EQ(port->radio().production().identity(), 4294967295u);
    EXPECT_EQ(number()->text(), "0");
    EXPECT_EQ(counter()->text(), "2");

    // The read shows what the radio holds and leaves the counter alone.
    ASSERT_TRUE(press(readButton()));
    EXPECT_EQ(lastBox(), "读取 OK | ");
    EXPECT_EQ(number()->text(), "4294967295");
    EXPECT_EQ(counter()->text(), "2");
}

TEST_F(IdentityWindowTest, OnlyDigitsAreTypedAndAnEmptyNumberIsRefusedInRed) {
    type("12a-3");
    EXPECT_EQ(number()->text(), "123");
    type("");
    QTest::mouseClick(writeButton(), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_EQ(prompts.boxes[0].text, "ID 输入错误，请重新输入");
    EXPECT_EQ(prompts.boxes[0].icon, BoxIcon::Warning);
    EXPECT_EQ(numberColour(), QColor(255, 0, 0));
    EXPECT_EQ(counter()->text(), "0");
    EXPECT_EQ(window.focusWidget(), writeButton());

    // A radio that does not answer leaves the number where it was, in red.
    SimFaults faults;
    faults.silentAlways = true;
    port->radio().setFaults(faults);
    type("77");
    ASSERT_TRUE(press(writeButton()));
    EXPECT_EQ(lastBox(), "通讯失败 | ");
    EXPECT_EQ(number()->text(), "77");
    EXPECT_EQ(numberColour(), QColor(255, 0, 0));
    EXPECT_EQ(counter()->text(), "0");
}

TEST_F(IdentityWindowTest, CaptionsFollowTheLanguage) {
    channel.setLanguage(UiLanguage::English);
    EXPECT_EQ(writeButton()->text(), "Write ID");
    EXPECT_EQ(readButton()->text(), "Read ID");
    EXPECT_EQ(find<QLabel>(window, "Label2")->text(), "Success");
    EXPECT_EQ(find<QLabel>(window, "Label3")->text(), "(decimal)");
    EXPECT_EQ(window.windowTitle(), "输入ID");
    channel.setLanguage(UiLanguage::Chinese);
    EXPECT_EQ(writeButton()->text(), "写ID");
    EXPECT_EQ(find<QLabel>(window, "Label2")->text(), "成功数");
}

}  // namespace
