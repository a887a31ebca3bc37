#include "service/ui/band_window.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTemporaryDir>

#include "service_window_fixture.h"

namespace {

class BandWindowTest : public ServiceWindowTest {
protected:
    BandWindowTest() { window.show(); }

    QTableWidget* grid() { return find<QTableWidget>(window, "MSFlexGrid1"); }
    QPushButton* button(const char* name) { return find<QPushButton>(window, name); }
    QLineEdit* text(int n) { return find<QLineEdit>(window, ("Text" + std::to_string(n)).c_str()); }
    QScrollBar* slider(int n) {
        return find<QScrollBar>(window, ("HScroll" + std::to_string(n)).c_str());
    }
    QString cell(int row, int column) { return grid()->item(row - 1, column)->text(); }
    void setCell(int row, int column, const QString& text) {
        grid()->item(row - 1, column)->setText(text);
    }
    QLineEdit* openEditor() {
        for (QLineEdit* open : grid()->findChildren<QLineEdit*>(QStringLiteral("GridEditor"))) {
            if (open->isVisible()) return open;
        }
        return nullptr;
    }

    BandWindow window{channel, prompts};
};

TEST_F(BandWindowTest, StartsWithTheFrequenciesAndTheAdjustSliders) {
    EXPECT_EQ(window.windowTitle(), "频段信息");
    EXPECT_EQ(grid()->rowCount(), 20);
    EXPECT_EQ(grid()->horizontalHeaderItem(1)->text(), "TX电压v");
    EXPECT_EQ(cell(1, 0), "400.025");
    EXPECT_EQ(cell(15, 0), "470.025");
    EXPECT_EQ(cell(16, 0), "");
    EXPECT_EQ(text(1)->text(), "1.70");
    EXPECT_EQ(text(2)->text(), "1.65");
    EXPECT_EQ(text(3)->text(), "21");
    EXPECT_EQ(slider(2)->maximum(), 330);
    EXPECT_EQ(slider(4)->minimum(), 10);
    slider(2)->setValue(5);
    EXPECT_EQ(text(2)->text(), "0.05");
    // Typed beyond the range: the box keeps it, the slider stops at its end.
    text(1)->selectAll();
    QTest::keyClicks(text(1), "5");
    EXPECT_EQ(text(1)->text(), "5");
    EXPECT_EQ(slider(1)->value(), 330);
}

TEST_F(BandWindowTest, TheTableWrittenIsReadBackIntoTheFirstFifteenRows) {
    for (int row = 1; row <= 20; ++row) {
        setCell(row, 1, "1.7");
        setCell(row, 2, "3.3");
        setCell(row, 3, QString::number(row));
    }
    ASSERT_TRUE(press(button("Command2")));
    EXPECT_EQ(lastBox(), "write ok!! | Band info");
    EXPECT_EQ(port->radio().service().bandSegment(1), QByteArray(20, static_cast<char>(131)));
    EXPECT_EQ(port->radio().service().bandSegment(3).toHex(),
              "0102030405060708090a0b0c0d0e0f1011121314");

    for (int row = 1; row <= 20; ++row) {
        for (int column = 1; column <= 3; ++column) setCell(row, column, "0");
    }
    ASSERT_TRUE(press(button("Command1")));
    EXPECT_EQ(lastBox(), "REG 读 OK!! | RF Reg");
    EXPECT_EQ(cell(1, 1), "1.7");
    EXPECT_EQ(cell(15, 2), "3.3");
    EXPECT_EQ(cell(15, 3), "15");
    EXPECT_EQ(cell(16, 3), "0");  // rows 16..20 keep what they held
}

TEST_F(BandWindowTest, AdjustFillsBothHalvesAndWrites) {
    setCell(4, 2, "2.2");
    ASSERT_TRUE(press(button("Command7")));
    EXPECT_EQ(lastBox(), "write ok!! | Band info");
    EXPECT_EQ(cell(8, 1), "1.70");
    EXPECT_EQ(cell(9, 1), "1.65");
    EXPECT_EQ(cell(15, 3), "21");
    EXPECT_EQ(cell(16, 1), "");
    EXPECT_EQ(cell(4, 2), "2.2");
    const QByteArray tx = port->radio().service().bandSegment(0);
    EXPECT_EQ(static_cast<quint8>(tx[7]), 131);
    EXPECT_EQ(static_cast<quint8>(tx[8]), 128);
}

TEST_F(BandWindowTest, ACellThatDoesNotFitIsRefusedNamingItsRow) {
    struct Case {
        int row, column;
        const char* cell;
        const char* named;
    };
    for (const Case& c : {Case{3, 1, "3.5", "第3行的TX电压"}, Case{20, 3, "256", "第20行的RSSI"},
                          Case{7, 2, "1..2", "第7行的RX电压"}}) {
        SCOPED_TRACE(c.cell);
        setCell(c.row, c.column, QString::fromUtf8(c.cell));
        prompts.boxes.clear();
        QTest::mouseClick(button("Command2"), Qt::LeftButton);
        ASSERT_EQ(prompts.boxes.size(), 1);
        EXPECT_TRUE(prompts.boxes[0].text.startsWith(QString::fromUtf8(c.named)))
            << prompts.boxes[0].text.toStdString();
        EXPECT_EQ(prompts.boxes[0].title, "Band info");
        setCell(c.row, c.column, "");
    }
    // The adjust boxes reach the grid first, and their write is refused the same way.
    text(3)->selectAll();
    QTest::keyClicks(text(3), "300");
    prompts.boxes.clear();
    QTest::mouseClick(button("Command7"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_TRUE(prompts.boxes[0].text.startsWith(QString::fromUtf8("第1行的RSSI")));
    EXPECT_EQ(cell(1, 3), "300");
    EXPECT_EQ(port->radio().requestCount(), 0);
}

TEST_F(BandWindowTest, OneClickOpensTheEditorWhichTakesOnlyWhatFits) {
    struct Case {
        int column;
        const char* typed;
        const char* kept;
    };
    for (const Case& c : {Case{1, "41.655", "1.65"}, Case{3, "25x59", "255"}}) {
        SCOPED_TRACE(c.typed);
        const QRect cellArea = grid()->visualItemRect(grid()->item(1, c.column));
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, cellArea.center());
        QLineEdit* editor = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] { return (editor = openEditor()) != nullptr; }, 2000));
        editor->clear();
        QTest::keyClicks(editor, QString::fromLatin1(c.typed));
        EXPECT_EQ(editor->text(), QString::fromLatin1(c.kept));
        // Enter moves on to the next cell.
        QTest::keyClick(editor, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return cell(2, c.column) == c.kept; }, 2000))
            << cell(2, c.column).toStdString();
        EXPECT_NE(grid()->currentIndex(), grid()->model()->index(1, c.column));
    }
}

TEST_F(BandWindowTest, TheFileKeepsTheTableAndAnOverlongOneSaysWhatWasDropped) {
    QTemporaryDir dir;
    setCell(1, 1, "1.7");
    setCell(20, 2, "0.5");
    setCell(1, 3, "21");
    prompts.savePath = dir.filePath("band.txt");
    QTest::mouseClick(button("Command5"), Qt::LeftButton);
    setCell(1, 1, "");
    setCell(20, 2, "");
    prompts.openPath = prompts.savePath;
    QTest::mouseClick(button("Command6"), Qt::LeftButton);
    EXPECT_EQ(cell(1, 1), "1.7");
    EXPECT_EQ(cell(20, 2), "0.5");
    EXPECT_EQ(cell(1, 3), "21");
    EXPECT_TRUE(prompts.boxes.isEmpty());

    QFile file(prompts.savePath);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("9\r\n8\r\n");
    file.close();
    QTest::mouseClick(button("Command6"), Qt::LeftButton);
    ASSERT_EQ(prompts.boxes.size(), 1);
    EXPECT_EQ(prompts.boxes[0].title, "Band info");
    EXPECT_TRUE(prompts.boxes[0].text.contains("60")) << prompts.boxes[0].text.toStdString();
}

TEST_F(BandWindowTest, RestoreDefaultsLeavesTheGridAndASilentRadioStopsTheRead) {
    setCell(1, 1, "2");
    ASSERT_TRUE(press(button("Command4")));
    EXPECT_EQ(lastBox(), "Clear OK!! | RF Reg");
    EXPECT_EQ(cell(1, 1), "2");

    SimFaults faults;
    faults.silentAlways = true;
    port->radio().setFaults(faults);
    QTest::mouseClick(button("Command1"), Qt::LeftButton);
    EXPECT_FALSE(button("Command2")->isEnabled());
    EXPECT_FALSE(button("Command6")->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return button("Command1")->isEnabled(); }, 15'000));
    EXPECT_EQ(lastBox(), "REG 读 出错!! | RF Reg");
    EXPECT_EQ(cell(1, 1), "2");
}

}  // namespace
