// Drives the desktop program through the states worth looking at and saves a PNG of each:
// mainwindow_screenshots OUTDIR (run under an X server; scripts/screenshots.sh uses Xvfb).
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "mainwindow/channel_grid_model.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_with_simulator.h"
#include "mainwindow/progress_window.h"
#include "mainwindow/splash_screen.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"

namespace {

// Boxes would wait for a click nobody gives; the tour notes them instead.
struct NotingPrompts : WindowPrompts {
    void showStatus(const StatusText&) override {}
    void showMessage(const MessageBox& box) override {
        std::fprintf(stderr, "box: %s\n", qPrintable(box.text));
    }
    bool askYesNo(const Question&) override { return true; }
    QString chooseOpenFile(const QString&) override { return {}; }
    QString chooseSaveFile(const QString&) override { return {}; }
};

QString outDir;
int failures = 0;

void settle(int ms = 300) {
    QTest::qWait(ms);
}

// The screen around `area` (popups and the progress window are windows of their own).
void save(const QString& name, const QRect& area) {
    QScreen* screen = QGuiApplication::primaryScreen();
    const QPixmap shot = screen->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    const QString path = QDir(outDir).filePath(name + QStringLiteral(".png"));
    if (!shot.save(path)) {
        std::fprintf(stderr, "cannot save %s\n", qPrintable(path));
        ++failures;
        return;
    }
    std::printf("%s\n", qPrintable(path));
}

void check(bool ok, const char* what) {
    if (ok) return;
    std::fprintf(stderr, "tour: %s did not happen\n", what);
    ++failures;
}

QWidget* visibleWindow(const char* form) {
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->objectName() == QLatin1String(form) && top->isVisible()) return top;
    }
    return nullptr;
}

// The identity window after numbering two radios, and the test window while its monitors run.
void productionWindows(MainWindow& window) {
    window.findChild<QAction*>(QStringLiteral("xid"))->trigger();
    if (QWidget* identity = visibleWindow("Form6")) {
        identity->move(40, 40);
        auto* write = identity->findChild<QPushButton*>(QStringLiteral("Command1"));
        auto* counter = identity->findChild<QLineEdit*>(QStringLiteral("Text2"));
        for (const char* count : {"1", "2"}) {
            write->click();
            check(QTest::qWaitFor([&] { return counter->text() == QLatin1String(count); }, 15000),
                  "identity written");
        }
        settle();
        save(QStringLiteral("17-identity"), identity->frameGeometry());
        identity->hide();
    } else {
        check(false, "Form6");
    }

    window.findChild<QAction*>(QStringLiteral("csms"))->trigger();
    QWidget* test = visibleWindow("Form4");
    check(test != nullptr, "Form4");
    if (!test) return;
    test->move(40, 40);
    auto* rssi = test->findChild<QLineEdit*>(QStringLiteral("Text1"));
    test->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    check(QTest::qWaitFor([&] { return rssi->text() != QLatin1String("0"); }, 15000),
          "RSSI monitor live");
    settle(1000);
    save(QStringLiteral("18-test-mode-rssi"), test->frameGeometry());
    auto* battery = test->findChild<QLineEdit*>(QStringLiteral("Text5"));
    test->findChild<QPushButton*>(QStringLiteral("Command3"))->click();
    check(QTest::qWaitFor([&] { return battery->text() != QLatin1String("0"); }, 15000),
          "battery monitor live");
    settle(600);
    save(QStringLiteral("19-test-mode-battery"), test->frameGeometry());
    test->close();  // tells the radio to stop
    settle();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("radioprog"));
    if (argc < 2) {
        std::fprintf(stderr, "usage: mainwindow_screenshots OUTDIR\n");
        return 2;
    }
    outDir = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(outDir);
    QTemporaryDir configDir;

    StartupConfig config;  // a first start: Chinese, 22 channels
    MainWindowSetup setup;
    setup.document = buildStartupCodeplug(config);
    setup.configPath = configDir.filePath(QStringLiteral("config.ini"));
    setup.catalogue = PortCatalogue({}, {{1, PortWithSimulator::simulatorDevice()}});
    setup.portToSelect = 1;
    SteadyClock clock;
    PortWithSimulator port(std::make_unique<QtSerialPort>(), clock);
    port.setSimulatorPacing(true);
    NotingPrompts prompts;
    MainWindow window(std::move(setup), port, clock, prompts);
    window.move(0, 0);
    window.showWithSplash();
    check(QTest::qWaitForWindowExposed(&window), "main window shown");
    settle();
    QRect screenArea = QGuiApplication::primaryScreen()->geometry();
    save(QStringLiteral("0-splash"), screenArea);
    QTest::qWait(SplashScreen::kShownMs);
    settle();
    save(QStringLiteral("1-main-chinese"), window.frameGeometry());

    auto* grid = window.findChild<QTableView*>(QStringLiteral("MSFlexGrid1"));
    auto* progress = window.findChild<ProgressWindow*>(QStringLiteral("Form5"));
    window.findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    check(QTest::qWaitFor([&] { return progress->isVisible() && progress->bar().value() >= 36; },
                          10000),
          "read under way");
    save(QStringLiteral("2-progress"), screenArea);
    check(QTest::qWaitFor([&] { return !window.sessionRunning(); }, 15000), "read finished");
    settle(1200);  // Timer1 puts the port state back into the status bar
    save(QStringLiteral("3-after-read-chinese"), window.frameGeometry());

    window.findChild<QAction*>(QStringLiteral("eng"))->trigger();
    settle();
    save(QStringLiteral("4-main-english"), window.frameGeometry());

    const QModelIndex code = grid->model()->index(2, ChannelGridModel::RxCode);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(code).center());
    settle(500);
    check(grid->findChild<QComboBox*>(QStringLiteral("Combo3")) != nullptr, "code picker open");
    save(QStringLiteral("5-code-picker"), screenArea);
    // Escape leaves the list, and then the picker.
    if (auto* picker = grid->findChild<QComboBox*>(QStringLiteral("Combo3"))) {
        picker->hidePopup();
        QTest::keyClick(picker, Qt::Key_Escape);
    }
    settle();
    check(grid->findChild<QComboBox*>(QStringLiteral("Combo3")) == nullptr, "code picker closed");

    window.resize(1400, 950);
    settle();
    save(QStringLiteral("6-resized-large"), window.frameGeometry());
    window.resize(900, 560);
    settle();
    save(QStringLiteral("7-resized-small"), window.frameGeometry());

    // The boot loader window after an erase of the simulated radio.
    window.findChild<QAction*>(QStringLiteral("prg"))->trigger();
    auto* boot = window.findChild<QWidget*>(QStringLiteral("FormBoot"));
    check(boot && QTest::qWaitForWindowExposed(boot), "boot loader window shown");
    if (boot) {
        boot->move(40, 40);
        boot->findChild<QPushButton*>(QStringLiteral("Command5"))->click();
        check(QTest::qWaitFor(
                  [&] {
                      return boot->findChild<QPushButton*>(QStringLiteral("Command5"))->isEnabled();
                  },
                  15000),
              "erase finished");
        settle();
        save(QStringLiteral("10-boot-loader"), boot->frameGeometry());
        boot->close();
    }
    // The engineering windows, each after a read from the simulated radio.
    struct Engineering {
        const char* item;
        const char* form;
        const char* readButton;
        const char* shot;
    };
    for (const Engineering& e : {Engineering{"crs", "Form14", "Command1", "8-crystal"},
                                 Engineering{"RFReg_Test", "Form9", "Command2", "9-registers"},
                                 Engineering{"gcms", "Form3", "Command1", "11-calibration"},
                                 Engineering{"yjx", "Form10", "Command1", "14-hardware"},
                                 Engineering{"ypcs", "Form7", "Command1", "15-volume"},
                                 Engineering{"mp3", "Form11", "Command1", "16-player"}}) {
        window.findChild<QAction*>(QString::fromLatin1(e.item))->trigger();
        QWidget* shown = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String(e.form) && top->isVisible()) shown = top;
        }
        check(shown != nullptr, e.form);
        if (!shown) continue;
        shown->move(40, 40);
        auto* read = shown->findChild<QPushButton*>(QString::fromLatin1(e.readButton));
        read->click();
        check(QTest::qWaitFor([&] { return read->isEnabled(); }, 15000), e.shot);
        settle();
        save(QString::fromLatin1(e.shot), shown->frameGeometry());
        shown->hide();
    }
    // The engineering window in Chinese, and the band window it opens after a read.
    window.findChild<QAction*>(QStringLiteral("chn"))->trigger();
    window.findChild<QAction*>(QStringLiteral("gcms"))->trigger();
    if (auto* calibration = window.findChild<QWidget*>(QStringLiteral("Form3"))) {
        settle();
        save(QStringLiteral("12-calibration-chinese"), calibration->frameGeometry());
        calibration->findChild<QPushButton*>(QStringLiteral("Command3"))->click();
        auto* band = calibration->findChild<QWidget*>(QStringLiteral("Form12"));
        check(band && QTest::qWaitForWindowExposed(band), "band window shown");
        if (band) {
            band->move(40, 40);
            auto* read = band->findChild<QPushButton*>(QStringLiteral("Command1"));
            read->click();
            check(QTest::qWaitFor([&] { return read->isEnabled(); }, 15000), "band read");
            settle();
            save(QStringLiteral("13-band"), band->frameGeometry());
        }
    }
    productionWindows(window);
    return failures == 0 ? 0 : 1;
}
