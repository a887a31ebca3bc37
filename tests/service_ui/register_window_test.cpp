#include "service/ui/register_window.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include "service_window_fixture.h"

namespace {

class RegisterWindowTest : public ServiceWindowTest {
protected:
    RegisterWindowTest() { window.show(); }

    QTableWidget* grid() { return find<QTableWidget>(window, "MSFlexGrid1"); }
    QPushButton* button(const char* name) { return find<QPushButton>(window, name); }
    QString cell(int row, int column) { return grid()->item(row - 1, column)->text(); }
    void setCell(int row, int column, const QString& text) {
        grid()->item(row - 1, column)->setText(text);
    }

    RegisterWindow window{channel, prompts};
};

TEST_F(RegisterWindowTest, WriteRficThenReadRficShowsWhatTheChipHolds) {
    setCell(1, 1, "3A");
    setCell(1, 2, "1F00");
    setCell(2, 1, "5");
    setCell(2, 2, "8000");
    ASSERT_TRUE(press(button("Command5")));
    EXPECT_EQ(lastBox(), "REG 写 OK!! | RF Reg");
    EXPECT_EQ(port->radio().service().rfRegister(0x3A), 0x1F00);
    EXPECT_EQ(port->radio().service().rfRegister(0x05), 0x8000);

    setCell(1, 2, "");
    setCell(2, 2, "1");
    ASSERT_TRUE(press(button("Command4")));
    EXPECT_EQ(lastBox(), "REG 读 OK!! | RF Reg");
    EXPECT_EQ(cell(1, 2), "1F00");
    EXPECT_EQ(cell(2, 2), "8000");
}

TEST_F(RegisterWindowTest, SaveToEepromThenClearThenReadEeprom) {
    setCell(1, 1, "10");
    setCell(1, 2, "ABCD");
    ASSERT_TRUE(press(button("Command3")));
    EXPECT_EQ(lastBox(), "REG 写 OK!! | RF Reg");
    setCell(1, 1, "");
    setCell(1, 2, "");
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(lastBox(), "REG 读 OK!! | RF Reg");
    EXPECT_EQ(cell(1, 1), "10");
    EXPECT_EQ(cell(1, 2), "ABCD");

    ASSERT_TRUE(press(button("Command1")));
    EXPECT_EQ(lastBox(), "Clear OK!! | RF Reg");
    EXPECT_EQ(cell(1, 1), "");
    EXPECT_EQ(port->radio().service().eepromRowCount(), 0);
}

TEST_F(RegisterWindowTest, GridsThatCannotBeSentAreRefusedWithTheirBoxes) {
    struct Case {
        const char* address;
        const char* value;
        const char* box;
    };
    for (const Case& c : {Case{"", "", "地址不能为空!! | Reg Empty!!"},
                          Case{"3A", "", "数据不能为空!! | Reg Empty!!"}}) {
        SCOPED_TRACE(c.box);
        setCell(1, 1, c.address);
        setCell(1, 2, c.value);
        prompts.boxes.clear();
        QTest::mouseClick(button("Command5"), Qt::LeftButton);
        EXPECT_EQ(lastBox(), QString::fromUtf8(c.box));
        EXPECT_TRUE(button("Command5")->isEnabled());
    }
    EXPECT_EQ(port->radio().requestCount(), 0);
}

TEST_F(RegisterWindowTest, TheCellEditorTakesOnlyHexadecimalUpToTheColumnWidth) {
    struct Case {
        int column;
        const char* typed;
        const char* kept;
    };
    for (const Case& c : {Case{1, "1g2z3", "12"}, Case{2, "abcde", "abcd"}}) {
        SCOPED_TRACE(c.typed);
        grid()->setCurrentCell(0, c.column);
        grid()->editItem(grid()->item(0, c.column));
        QLineEdit* editor = nullptr;
        for (QLineEdit* open : grid()->findChildren<QLineEdit*>(QStringLiteral("Text1"))) {
            if (open->isVisible()) editor = open;
        }
        ASSERT_NE(editor, nullptr);
        editor->clear();
        QTest::keyClicks(editor, QString::fromLatin1(c.typed));
        EXPECT_EQ(editor->text(), QString::fromLatin1(c.kept));
        QTest::keyClick(editor, Qt::Key_Return);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return cell(1, c.column) == QLatin1String(c.kept); }, 2000))
            << cell(1, c.column).toStdString();
    }
}

TEST_F(RegisterWindowTest, TheFileKeepsTheGridAndAnOverlongOneSaysWhatWasDropped) {
    QTemporaryDir dir;
    setCell(1, 1, "3A");
    setCell(1, 2, "1F00");
    prompts.savePath = dir.filePath("regs.txt");
    QTest::mouseClick(button("Command7"), Qt::LeftButton);
    setCell(1, 1, "");
    prompts.openPath = prompts.savePath;
    QTest::mouseClick(button("Command6"), Qt::LeftButton);
    EXPECT_EQ(cell(1, 1), "3A");
    EXPECT_EQ(cell(1, 2), "1F00");
    EXPECT_TRUE(prompts.boxes.isEmpty());

    QFile file(prompts.savePath);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("77\r\n");
    file.close();
    QTest::mouseClick(button("Command6"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_EQ(prompts.boxes[0].title, "RF Reg");
    EXPECT_TRUE(prompts.boxes[0].text.contains("20")) << prompts.boxes[0].text.toStdString();
}

}  // namespace
