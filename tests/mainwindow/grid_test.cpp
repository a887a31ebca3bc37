#include <QLineEdit>

#include "mainwindow/custom_tone_dialog.h"
#include "model/code_tables.h"
#include "window_fixture.h"

namespace {

using Col = ChannelGridModel::Column;

// Types `text` into a frequency cell the way a user does: the first key opens the editor, the
// rest go into it, Enter takes it over.
void typeFrequency(WindowFixture& f, int row, int column, const QString& text) {
    QTableView* view = f.grid();
    view->setFocus();
    view->setCurrentIndex(f.cell(row, column));
    QTest::keyClick(view, text.at(0).toLatin1());
    auto* editor = view->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, text.mid(1));
    QTest::keyClick(editor, Qt::Key_Return);
}

TEST(GridEntry, TheReceiveRuleWithItsWarningsInOrder) {
    const QString outOfBand = QStringLiteral("Num1Channl Frequency Input error，Please edit again");
    struct Case {
        const char* typed;
        const char* rx;
        const char* tx;
        QStringList boxes;
    };
    const Case cases[] = {
        // The transmit cell gets the copy and is warned about first, then the receive cell.
        {"500.00000", "400", "500.00000", {outOfBand, outOfBand}},
        {"446.00625", "446.00625", "446.00625", {}},
        {"44x6.0a0625", "446.00625", "446.00625", {}},  // letters never reach the cell
        {"450.0", "450.0", "000.00000", {}},            // short texts are neither checked nor copied
    };
    for (const Case& c : cases) {
        WindowFixture f;
        typeFrequency(f, 0, Col::RxFrequency, QString::fromLatin1(c.typed));
        EXPECT_EQ(f.text(0, Col::RxFrequency), c.rx) << c.typed;
        EXPECT_EQ(f.text(0, Col::TxFrequency), c.tx) << c.typed;
        EXPECT_EQ(f.prompts.boxTexts(), c.boxes) << c.typed;
        for (const MessageBox& box : f.prompts.boxes) {
            EXPECT_EQ(box.title, "NOTE");
            EXPECT_EQ(box.icon, BoxIcon::Warning);
        }
    }
}

TEST(GridEntry, EnterMovesOnAndAClickOnTransmitReformats) {
    WindowFixture f;
    typeFrequency(f, 3, Col::TxFrequency, QStringLiteral("446.003"));
    EXPECT_EQ(f.grid()->currentIndex(), f.cell(3, Col::TxCode));
    EXPECT_EQ(f.text(3, Col::TxFrequency), "446.003");
    f.click(3, Col::TxFrequency);
    EXPECT_EQ(f.text(3, Col::TxFrequency), "446.00000");  // down onto the 5 kHz raster
}

TEST(GridKeyboard, TabEnterAndArrowsMoveBetweenCellsAndSkipTheChannelNumbers) {
    WindowFixture f;
    QTableView* view = f.grid();
    view->setFocus();
    view->setCurrentIndex(f.cell(0, Col::Power));
    QTest::keyClick(view, Qt::Key_Tab);
    EXPECT_EQ(view->currentIndex(), f.cell(1, Col::RxFrequency));
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(view->currentIndex(), f.cell(1, Col::RxCode));
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(view->currentIndex(), f.cell(2, Col::RxCode));
    QTest::keyClick(view, Qt::Key_Backtab);
    EXPECT_EQ(view->currentIndex(), f.cell(2, Col::RxFrequency));
    QTest::keyClick(view, Qt::Key_Backtab);
    EXPECT_EQ(view->currentIndex(), f.cell(1, Col::Power));
    EXPECT_EQ(view->findChild<QComboBox*>(), nullptr);  // moving never opens a picker
}

TEST(GridToggles, BandwidthAndPowerFlipUnlessTheChannelsAreFixed) {
    for (const bool fixed : {false, true}) {
        WindowFixture f(startupDocument(UiLanguage::English, fixed));
        EXPECT_EQ(f.text(1, Col::Bandwidth), "narrow");
        EXPECT_EQ(f.text(1, Col::Power), "high");
        EXPECT_EQ(f.cell(1, Col::Power).data(Qt::ForegroundRole).value<QBrush>().color(),
                  QColor(Qt::red));
        f.click(1, Col::Bandwidth);
        f.click(1, Col::Power);
        // The keyboard does the same with Space.
        f.grid()->setCurrentIndex(f.cell(2, Col::Bandwidth));
        QTest::keyClick(f.grid(), Qt::Key_Space);
        EXPECT_EQ(f.text(1, Col::Bandwidth), fixed ? "narrow" : "wide") << fixed;
        EXPECT_EQ(f.text(1, Col::Power), fixed ? "high" : "low") << fixed;
        EXPECT_EQ(f.text(2, Col::Bandwidth), fixed ? "narrow" : "wide") << fixed;
        EXPECT_EQ(f.cell(1, Col::Power).data(Qt::ForegroundRole).value<QBrush>().color() ==
                      QColor(Qt::red),
                  fixed);
    }
}

TEST(GridLocks, TheFixedChannelFlagLocksCellsAndSelectors) {
    WindowFixture f(startupDocument(UiLanguage::English, true));
    for (int column : {Col::RxFrequency, Col::TxFrequency, Col::RxCode, Col::TxCode}) {
        EXPECT_FALSE(f.cell(0, column).flags() & Qt::ItemIsEditable) << column;
    }
    for (const char* name : {"Combo12", "Combo1", "Combo4", "Combo15", "Combo13"}) {
        EXPECT_FALSE(f.find<QComboBox>(name)->isEnabled()) << name;
    }
    EXPECT_TRUE(f.find<QComboBox>("Combo5")->isEnabled());
}

TEST(GridRows, TheChannelCountEnablesItsRows) {
    WindowFixture f;
    for (const int count : {1, 25, 22}) {
        f.choose("Combo12", count - 1);
        for (int row = 0; row < kSlotCount; ++row) {
            EXPECT_EQ(bool(f.cell(row, Col::RxFrequency).flags() & Qt::ItemIsEnabled), row < count)
                << count << " " << row;
        }
    }
    EXPECT_EQ(f.grid()->model()->rowCount(), kSlotCount);
}

TEST(GridCodes, TheModeSwitchResetsAllCodePairs) {
    WindowFixture f;
    EXPECT_EQ(f.text(24, Col::RxCode), "67.0");
    f.choose("Combo4", 1);
    for (int row = 0; row < kSlotCount; ++row) {
        EXPECT_EQ(f.text(row, Col::RxCode), "OFF") << row;
        EXPECT_EQ(f.text(row, Col::TxCode), "OFF") << row;
    }
    EXPECT_EQ(f.window->document().codeTable.size(), kProfessionalCodeCount);
}

TEST(GridCodes, ThePickerHoldsTheActiveListAndTheCustomEntryAsksForATone) {
    WindowFixture f;
    f.choose("Combo4", 1);  // professional
    f.click(2, Col::TxCode);
    auto* picker = f.grid()->findChild<QComboBox*>(QStringLiteral("Combo2"));
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(picker->count(), kProfessionalCodeCount);
    EXPECT_EQ(picker->currentText(), "OFF");
    picker->hidePopup();
    picker->setCurrentIndex(kProfessionalCustomTonePosition);
    Q_EMIT picker->activated(kProfessionalCustomTonePosition);
    EXPECT_EQ(f.text(2, Col::TxCode), "Custom");

    auto* dialog = f.window->findChild<CustomToneDialog*>(QStringLiteral("CustomToneDialog"));
    ASSERT_NE(dialog, nullptr);
    auto* field = dialog->findChild<QLineEdit*>(QStringLiteral("Text1"));
    EXPECT_EQ(field->text(), "67.0");
    field->clear();
    QTest::keyClicks(field, QStringLiteral("3x00"));
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_EQ(f.prompts.boxTexts(),
              QStringList{QStringLiteral("CTCSS Frequency Input error，Please edit again")});
    EXPECT_TRUE(dialog->isVisible());

    field->clear();
    QTest::keyClicks(field, QStringLiteral("88.5"));
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_EQ(f.cell(2, Col::TxCode).data(Qt::ToolTipRole).toString(), "88.5");
}

}  // namespace
