#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "link/memory_image.h"
#include "mainwindow/progress_window.h"
#include "persistence/backup_folder.h"
#include "persistence/config_file.h"
#include "sim/sim_radio.h"
#include "window_fixture.h"

namespace {

using Col = ChannelGridModel::Column;

// A plan the write checks accept: slot i on 440.025 + i × 0.025 MHz, transmit 5 kHz higher.
Codeplug writablePlan() {
    Codeplug doc = startupDocument();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        doc.plan[slot].rxfreq = formatFrequencyValue(440.025 + slot * 0.025);
        doc.plan[slot].txfreq = formatFrequencyValue(440.030 + slot * 0.025);
    }
    return doc;
}

bool buttonsEnabled(WindowFixture& f) {
    return f.find<QPushButton>("Command1")->isEnabled() &&
           f.find<QPushButton>("Command2")->isEnabled();
}

TEST(Sessions, AWriteSendsThePlanAndAReadFillsTheGrid) {
    WindowFixture f(writablePlan());
    QTest::mouseClick(f.find<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_FALSE(buttonsEnabled(f));
    EXPECT_TRUE(f.find<ProgressWindow>("Form5")->isVisible());
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Write OK"});
    EXPECT_TRUE(f.radio().programmingEnded());
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const QByteArray frame = std::get<QByteArray>(encode_channel(f.window->document(), slot));
        EXPECT_EQ(f.radio().channelRecord(slot), frame.mid(4, frame.size() - 5)) << slot;
    }

    // Edit a row, then read it back from the radio.
    f.click(6, Col::Bandwidth);
    f.grid()->setCurrentIndex(f.cell(6, Col::TxFrequency));
    QTest::keyClick(f.grid(), '4');
    QTest::keyClicks(f.grid()->findChild<QLineEdit*>(), QStringLiteral("50.00000"));
    QTest::keyClick(f.grid()->findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_EQ(f.text(6, Col::TxFrequency), "450.00000");

    f.prompts.boxes.clear();
    f.find<QAction>("WriteChn")->trigger();
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Read OK"});
    EXPECT_EQ(f.text(6, Col::TxFrequency), "440.18000");
    EXPECT_EQ(f.text(6, Col::Bandwidth), "narrow");
    EXPECT_TRUE(buttonsEnabled(f));
    EXPECT_FALSE(f.find<ProgressWindow>("Form5")->isVisible());
    EXPECT_TRUE(f.prompts.statuses.contains("Read OK"));
}

TEST(Sessions, TraceToFileKeepsEveryFrameOfARead) {
    WindowFixture f;
    f.prompts.savePath = f.dir.filePath("trace.log");
    auto* trace = f.window->findChild<QAction*>("TraceToFile");
    ASSERT_NE(trace, nullptr);
    trace->trigger();
    ASSERT_TRUE(trace->isChecked());
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    trace->trigger();  // stops tracing and closes the file
    EXPECT_FALSE(trace->isChecked());
    QFile file(f.prompts.savePath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 52);  // 26 requests, 26 replies
    EXPECT_TRUE(lines.first().endsWith("> 53 03 00 00 04 5a  S settings"))
        << lines.first().toStdString();
    EXPECT_TRUE(lines.last().endsWith("checksum ok")) << lines.last().toStdString();

    f.prompts.savePath.clear();  // a cancelled file choice leaves the item unchecked
    trace->trigger();
    EXPECT_FALSE(trace->isChecked());
}

TEST(Sessions, ClosingTheProgressWindowCancelsARead) {
    WindowFixture f;
    f.port.setSimulatorPacing(true);
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    auto* progress = f.find<ProgressWindow>("Form5");
    ASSERT_TRUE(f.waitFor([&] { return progress->bar().value() >= 9; }));
    EXPECT_FALSE(f.find<QComboBox>("Combo18")->isEnabled());  // the port stays while in use
    EXPECT_FALSE(f.find<QPushButton>("Command3")->isEnabled());
    EXPECT_FALSE(f.find<QPushButton>("Command5")->isEnabled());  // no file over a read
    EXPECT_FALSE(f.find<QAction>("MenuFileOpen")->isEnabled());
    progress->close();
    EXPECT_FALSE(f.window->sessionRunning());
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Read Error"});
    EXPECT_TRUE(buttonsEnabled(f));
    EXPECT_FALSE(progress->isVisible());
    EXPECT_TRUE(f.port.isOpen());
    EXPECT_TRUE(f.find<QComboBox>("Combo18")->isEnabled());
    EXPECT_TRUE(f.find<QAction>("MenuFileOpen")->isEnabled());

    // Nothing half-sent is left behind: the next read runs to its end.
    f.port.setSimulatorPacing(false);
    f.prompts.boxes.clear();
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Read OK"});
}

TEST(Sessions, YesToTheExitQuestionDuringAReadCancelsItAndClosesThePort) {
    WindowFixture f;
    f.port.setSimulatorPacing(true);
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    ASSERT_TRUE(f.waitFor([&] { return f.find<ProgressWindow>("Form5")->bar().value() >= 3; }));
    f.prompts.answer = true;
    EXPECT_TRUE(f.window->close());
    EXPECT_FALSE(f.window->sessionRunning());
    EXPECT_FALSE(f.port.isOpen());
}

TEST(Sessions, ASilentRadioEndsTheReadWithTheLinkMessage) {
    WindowFixture f;
    SimFaults faults;
    faults.silentAlways = true;
    f.radio().setFaults(faults);
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    ASSERT_FALSE(f.prompts.boxes.empty());
    EXPECT_EQ(f.prompts.boxes.front().text, "Transmission Error，Check Radio");
    EXPECT_TRUE(buttonsEnabled(f));
    EXPECT_FALSE(f.find<ProgressWindow>("Form5")->isVisible());
    EXPECT_EQ(f.text(0, Col::RxFrequency), "000.00000");
}

TEST(Sessions, AReadWithThePortClosedOnlySaysSo) {
    WindowFixture f;
    f.find<QAction>("com3")->trigger();  // no such port: closed
    f.prompts.boxes.clear();
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Please check COM Port"});
    EXPECT_TRUE(buttonsEnabled(f));
    EXPECT_FALSE(f.window->sessionRunning());
}

}  // namespace

namespace {

TEST(History, UndoAndRedoCoverEditsAndAWholeReadInAnyLanguage) {
    WindowFixture f(startupDocument(UiLanguage::Chinese));
    QAction* undo = f.find<QAction>("undo");
    QAction* redo = f.find<QAction>("redo");
    f.click(1, Col::Bandwidth);
    f.choose("Combo12", 4);  // five channels
    EXPECT_EQ(f.text(1, Col::Bandwidth), QStringLiteral("宽带"));

    f.find<QAction>("eng")->trigger();  // a language switch is no step of its own
    undo->trigger();
    EXPECT_EQ(f.window->document().chtot, "22");
    undo->trigger();
    EXPECT_EQ(f.text(1, Col::Bandwidth), "narrow");
    redo->trigger();
    EXPECT_EQ(f.text(1, Col::Bandwidth), "wide");

    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    EXPECT_FALSE(undo->isEnabled());
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    const QString readRx = f.text(0, Col::RxFrequency);
    EXPECT_NE(readRx, "000.00000");
    undo->trigger();
    EXPECT_EQ(f.text(0, Col::RxFrequency), "000.00000");
    EXPECT_EQ(f.text(1, Col::Bandwidth), "wide");
    redo->trigger();
    EXPECT_EQ(f.text(0, Col::RxFrequency), readRx);
}

TEST(Sessions, TheBackupAndVerifyItemsTakeEffectAndAreRemembered) {
    WindowFixture f(writablePlan());
    QAction* backup = f.find<QAction>("BackupBeforeWrite");
    QAction* verify = f.find<QAction>("VerifyAfterWrite");
    EXPECT_TRUE(backup->isChecked());
    EXPECT_TRUE(verify->isChecked());
    EXPECT_EQ(backupFolder(),
              QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")) + "/radioprog/backups");
    const auto backupCount = [] { return QDir(backupFolder()).entryList(QDir::Files).size(); };
    const auto before = backupCount();
    SimFaults faults;
    faults.corruptChannel = 4;
    faults.corruptOffset = 1;
    f.radio().setFaults(faults);
    const auto write = [&f] {
        f.prompts.boxes.clear();
        QTest::mouseClick(f.find<QPushButton>("Command1"), Qt::LeftButton);
        EXPECT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }, 30000));
    };

    write();
    EXPECT_EQ(backupCount(), before + 1);
    ASSERT_EQ(f.prompts.boxes.size(), 1u);
    EXPECT_EQ(f.prompts.boxes[0].icon, BoxIcon::Warning);
    EXPECT_TRUE(f.prompts.boxes[0].text.contains("channel 4, Rx Frequency: written 440.10000"))
        << f.prompts.boxes[0].text.toStdString();
    EXPECT_TRUE(buttonsEnabled(f));

    backup->trigger();
    verify->trigger();
    write();
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"Write OK"});
    EXPECT_EQ(backupCount(), before + 1);
    const SafeWritePreferences remembered =
        readSafeWritePreferences(f.dir.filePath(QStringLiteral("config.ini")));
    EXPECT_FALSE(remembered.backup);
    EXPECT_FALSE(remembered.verify);
}

}  // namespace
