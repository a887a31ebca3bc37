#include <fcntl.h>
#include <unistd.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

#include "mainwindow/cable_check_dialog.h"
#include "mainwindow/port_picker_dialog.h"
#include "window_fixture.h"

namespace {

// The finder re-lists the ports on its timer; each listing takes the next of `scans`, and the
// last one stays.
TEST(PortFinderDialog, SelectsThePortThatCameBack) {
    QStringList scans[] = {
        {"/dev/ttyS0", "/dev/ttyUSB0"}, {"/dev/ttyS0"}, {"/dev/ttyS0", "/dev/ttyUSB1"}};
    int next = 0;
    PortPickerDialog dialog(nullptr, [&] { return scans[std::min(next++, 2)]; });
    dialog.setLanguage(UiLanguage::English);
    dialog.show();
    QSignalSpy found(&dialog, &PortPickerDialog::cableFound);

    dialog.findChild<QPushButton*>(QStringLiteral("FindCable"))->click();
    EXPECT_EQ(dialog.finderStatus().text(),
              QStringLiteral("Unplug the cable, or plug it in if it is not in yet."));
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog.finderStatus().text().contains("was on"); },
                                3 * PortPickerDialog::kRescanMs));
    EXPECT_EQ(dialog.finderStatus().text(),
              QStringLiteral("The cable was on /dev/ttyUSB0. Plug it in again."));
    ASSERT_TRUE(found.wait(3 * PortPickerDialog::kRescanMs));
    EXPECT_EQ(found.first().first().toString(), QStringLiteral("/dev/ttyUSB1"));
    EXPECT_EQ(dialog.finderStatus().text(), QStringLiteral("The cable is on /dev/ttyUSB1."));
    EXPECT_FALSE(dialog.finderRunning());  // no listing once it is found

    dialog.findChild<QPushButton*>(QStringLiteral("FindCable"))->click();
    EXPECT_TRUE(dialog.finderRunning());
    dialog.hide();
    EXPECT_FALSE(dialog.finderRunning());  // nor once the dialog is closed
}

TEST(CableCheck, TheSetupMenuShowsTheReport) {
    WindowFixture f;
    QAction* item = f.find<QAction>("CableCheck");
    EXPECT_EQ(item->text(), QStringLiteral("Cable check"));
    item->trigger();
    auto* dialog = f.window->findChild<CableCheckDialog*>(QStringLiteral("CableCheck"));
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    const QString report =
        dialog->findChild<QPlainTextEdit*>(QStringLiteral("CableReport"))->toPlainText();
    EXPECT_TRUE(report.startsWith(QStringLiteral("Cable check for user "))) << qPrintable(report);
    EXPECT_TRUE(report.contains(QStringLiteral("What to do:"))) << qPrintable(report);

    // The radio test on the open port: the simulated radio answers.
    auto* probe = dialog->findChild<QPushButton*>(QStringLiteral("ProbeRadio"));
    probe->click();
    EXPECT_FALSE(probe->isEnabled());  // one test at a time
    ASSERT_TRUE(f.waitFor([&] { return probe->isEnabled(); }));
    EXPECT_TRUE(dialog->reportText().contains(QStringLiteral("a radio answered")))
        << qPrintable(dialog->reportText());
}

TEST(CableCheck, ClosingTheDialogDuringTheRadioTestFreesTheLink) {
    WindowFixture f;
    f.find<QAction>("CableCheck")->trigger();
    auto* dialog = f.window->findChild<CableCheckDialog*>(QStringLiteral("CableCheck"));
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QPushButton*>(QStringLiteral("ProbeRadio"))->click();
    dialog->close();
    ASSERT_TRUE(f.waitFor([&] { return !f.window->findChild<CableCheckDialog*>(); }));
    // The read goes ahead on the link the test held.
    f.find<QAction>("WriteChn")->trigger();
    EXPECT_TRUE(f.window->sessionRunning());
}

TEST(CableCheck, AFoundCableJoinsThePortListAndIsOpened) {
    WindowFixture f;
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(master, 0);
    ASSERT_EQ(grantpt(master), 0);
    ASSERT_EQ(unlockpt(master), 0);
    const QString device = QString::fromLatin1(ptsname(master));

    f.find<QAction>("comx")->trigger();
    auto* picker = f.window->findChild<PortPickerDialog*>(QStringLiteral("Form13"));
    ASSERT_NE(picker, nullptr);
    Q_EMIT picker->cableFound(device);

    QComboBox* list = f.find<QComboBox>("Combo18");
    EXPECT_EQ(list->currentText(), QStringLiteral("COM2"));
    EXPECT_EQ(list->itemData(list->currentIndex(), Qt::ToolTipRole).toString(), device);
    EXPECT_TRUE(f.port.isOpen());
    EXPECT_EQ(picker->numbers().currentIndex(), 2);
    ::close(master);
}

}  // namespace
