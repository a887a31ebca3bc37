#include "bootloader/ui/boot_loader_window.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "link/link_transport.h"
#include "platform/steady_clock.h"
#include "platform/window_prompts.h"
#include "sim/simulated_radio_port.h"

namespace {

struct FilePrompts : WindowPrompts {
    QString savePath;
    int saveQuestions = 0;
    void showStatus(const StatusText&) override {}
    void showMessage(const MessageBox&) override {}
    bool askYesNo(const Question&) override { return false; }
    QString chooseOpenFile(const QString&) override { return {}; }
    QString chooseSaveFile(const QString&) override {
        ++saveQuestions;
        return savePath;
    }
};

class BootLoaderWindowTest : public ::testing::Test {
protected:
    BootLoaderWindowTest() {
        port->radio().setLatencyMs(1);
        port->radio().bootloader().setEraseMs(10);
        port->open(SimulatedPort::kDefaultDevice);
        window.show();
    }

    template <typename T>
    T* find(const char* name) {
        T* widget = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QStringList logLines() {
        return find<QPlainTextEdit>("Text5")->toPlainText().split('\n', Qt::SkipEmptyParts);
    }
    bool runToEnd() {
        return QTest::qWaitFor([&] { return !window.isBusy(); }, 30'000);
    }

    QTemporaryDir dir;
    SteadyClock clock;
    std::unique_ptr<SimulatedRadioPort> port = SimulatedRadioPort::create(clock);
    LinkTransport transport{*port, clock};
    FilePrompts prompts;
    BootLoaderWindow window{transport, prompts, UiLanguage::English};
};

TEST_F(BootLoaderWindowTest, AWriteWithVerifyRestsTheButtonsAndLogsEachStep) {
    QByteArray image(1000, '\0');
    for (int i = 0; i < image.size(); ++i) image[i] = static_cast<char>(i * 7);
    const QString path = dir.filePath("fw.bin");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(image);
    file.close();

    find<QComboBox>("Combo1")->setCurrentText(path);
    ASSERT_TRUE(find<QCheckBox>("VerifyBox")->isChecked());
    QTest::mouseClick(find<QPushButton>("Command3"), Qt::LeftButton);
    EXPECT_FALSE(find<QPushButton>("Command5")->isEnabled());
    EXPECT_TRUE(find<QPushButton>("CancelButton")->isEnabled());
    ASSERT_TRUE(runToEnd());

    const QStringList lines = logLines();
    ASSERT_EQ(lines.size(), 6) << lines.join('\n').toStdString();
    EXPECT_EQ(lines.mid(0, 5),
              QStringList({"烧写的目标文件:" + path, "boot link wait......", "write start......",
                           "Write OK!!!!", "verify start......"}));
    EXPECT_TRUE(lines[5].startsWith("Verify OK!!!!"));
    EXPECT_EQ(find<QProgressBar>("ProgressBar1")->value(), 100);
    EXPECT_TRUE(find<QPushButton>("Command3")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("CancelButton")->isEnabled());
    EXPECT_EQ(port->radio().bootloader().memory().mid(0x1000, 1000), image);
}

TEST_F(BootLoaderWindowTest, AReadAsksForItsFileWhenNoneWasChosenAndSavesWhatCame) {
    prompts.savePath = dir.filePath("out.bin");
    find<QLineEdit>("Text2")->setText("10FF");
    QTest::mouseClick(find<QPushButton>("Command4"), Qt::LeftButton);
    ASSERT_TRUE(runToEnd());
    EXPECT_EQ(logLines().last(), "Read OK!!!!");
    EXPECT_EQ(prompts.saveQuestions, 1);
    QFile out(prompts.savePath);
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    EXPECT_EQ(out.readAll(), QByteArray(256, '\xff'));
}

TEST_F(BootLoaderWindowTest, CancelStopsAWaitingLinkPhase) {
    SimFaults faults;
    faults.notInBootMode = true;
    port->radio().setFaults(faults);
    QTest::mouseClick(find<QPushButton>("Command5"), Qt::LeftButton);
    QTest::qWait(300);
    ASSERT_TRUE(window.isBusy());
    QTest::mouseClick(find<QPushButton>("CancelButton"), Qt::LeftButton);
    ASSERT_TRUE(runToEnd());
    EXPECT_EQ(logLines().last(), "Cancelled");
    EXPECT_TRUE(find<QPushButton>("Command5")->isEnabled());
}

}  // namespace
