#include <QAction>
#include <QDialog>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>

#include "persistence/config_file.h"
#include "window_fixture.h"

namespace {

using Col = ChannelGridModel::Column;

QStringList items(QComboBox* box) {
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) texts << box->itemText(i);
    return texts;
}

TEST(Language, TheSwitchRedrawsTheWindowAndKeepsWhatWasChosenAndEdited) {
    WindowFixture f(startupDocument(UiLanguage::Chinese));
    EXPECT_EQ(f.window->windowTitle(), QStringLiteral("工程测试    ver:19.0.13"));
    f.choose("Combo5", 1);   // Disable
    f.choose("Combo15", 2);  // shown only, but a stored band must survive too
    f.click(4, Col::Bandwidth);
    EXPECT_EQ(f.text(4, Col::Bandwidth), QStringLiteral("宽带"));

    f.find<QAction>("eng")->trigger();
    EXPECT_EQ(f.window->windowTitle(), "Program    ver:19.0.13");
    EXPECT_EQ(f.find<QMenu>("MenuFile")->title(), "File");
    EXPECT_EQ(f.find<QAction>("WriteChn")->text(), "Read");
    EXPECT_EQ(f.find<QPushButton>("Command2")->text(), "Read");
    EXPECT_EQ(f.find<QGroupBox>("Frame3")->title(), "Channel Edit");
    EXPECT_EQ(f.grid()->model()->headerData(Col::RxFrequency, Qt::Horizontal).toString(),
              "Rx Frequency");
    EXPECT_EQ(items(f.find<QComboBox>("Combo5")), (QStringList{"Enable", "Disable"}));
    EXPECT_EQ(f.find<QComboBox>("Combo5")->currentIndex(), 1);
    EXPECT_EQ(items(f.find<QComboBox>("Combo15")).size(), 4);
    EXPECT_EQ(f.find<QComboBox>("Combo4")->currentText(), "1:Normal");
    EXPECT_EQ(f.text(4, Col::Bandwidth), "wide");
    EXPECT_EQ(f.text(5, Col::Bandwidth), "narrow");
    EXPECT_EQ(f.text(5, Col::Power), "high");
    EXPECT_TRUE(f.find<QAction>("eng")->isChecked());
    EXPECT_FALSE(f.find<QAction>("chn")->isChecked());
    // The status bar says the same thing in the new language.
    EXPECT_TRUE(f.find<QLabel>("Panel1")->text().startsWith("COM"))
        << f.find<QLabel>("Panel1")->text().toStdString();
    // The choice outlives the run.
    EXPECT_EQ(ReadConfigFile(f.dir.filePath("config.ini")).language, UiLanguage::English);

    f.find<QAction>("chn")->trigger();
    EXPECT_EQ(f.find<QMenu>("MenuFile")->title(), QStringLiteral("文件(&F)"));
    EXPECT_EQ(f.find<QComboBox>("Combo5")->currentText(), QStringLiteral("禁止"));
    EXPECT_EQ(f.text(4, Col::Bandwidth), QStringLiteral("宽带"));
}

TEST(Startup, AConfigurationThatCannotBeReadIsNamedInTheStatusBar) {
    WindowFixture world(startupDocument(),
                        Error::inFile(ErrorKind::CannotOpen, "/etc/radioprog/config.ini"));
    const QString shown = world.window->statusBar()->currentMessage();
    EXPECT_TRUE(shown.contains("/etc/radioprog/config.ini")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("defaults")) << shown.toStdString();
}

TEST(Exit, NoKeepsThePortOpenAndYesClosesIt) {
    WindowFixture f;
    ASSERT_TRUE(f.port.isOpen());
    f.prompts.answer = false;
    EXPECT_FALSE(f.window->close());
    EXPECT_TRUE(f.port.isOpen());
    EXPECT_FALSE(f.find<QAction>("FormCancel")->isChecked());
    EXPECT_TRUE(f.window->findChild<QTimer*>(QStringLiteral("Timer1"))->isActive());
    ASSERT_EQ(f.prompts.questions.size(), 1u);
    EXPECT_EQ(f.prompts.questions[0].text, "Exit Program?");
    EXPECT_EQ(f.prompts.questions[0].title, "Exit Program");

    f.prompts.answer = true;
    f.find<QAction>("FormCancel")->trigger();
    EXPECT_FALSE(f.window->isVisible());
    EXPECT_FALSE(f.port.isOpen());
}

TEST(Files, EveryLayoutOpensIntoTheGrid) {
    struct Case {
        const char* file;
        const char* firstRx;
    };
    const Case cases[] = {
        {"current.qzv", "462.56250"}, {"v05.qzv", "409.75000"}, {"v13.qzv", "462.56250"},
        {"v16.qzv", "409.75000"},     {"v18.qzv", "462.56250"},
    };
    for (const Case& c : cases) {
        WindowFixture f;
        f.prompts.openPath = QStringLiteral(CODEPLUG_SAMPLES_DIR "/") + QLatin1String(c.file);
        QTest::mouseClick(f.find<QPushButton>("Command5"), Qt::LeftButton);
        EXPECT_EQ(f.text(0, Col::RxFrequency), c.firstRx) << c.file;
        EXPECT_EQ(f.find<QComboBox>("Combo12")->currentText(), f.window->document().chtot)
            << c.file;
        EXPECT_TRUE(f.prompts.boxes.empty()) << c.file;
    }
}

TEST(Files, SaveAsWritesWhatOpenReadsBackAndBadFilesAreNamed) {
    WindowFixture f;
    f.click(0, Col::Power);
    f.prompts.savePath = f.dir.filePath(QStringLiteral("plan"));  // the extension is added
    f.find<QAction>("MenuSave")->trigger();
    ASSERT_TRUE(QFile::exists(f.dir.filePath(QStringLiteral("plan.qzv"))));

    WindowFixture g;
    g.prompts.openPath = f.dir.filePath(QStringLiteral("plan.qzv"));
    g.find<QAction>("MenuFileOpen")->trigger();
    EXPECT_EQ(g.text(0, Col::Power), "low");

    g.prompts.openPath = f.dir.filePath(QStringLiteral("missing.qzv"));
    g.find<QAction>("MenuFileOpen")->trigger();
    ASSERT_EQ(g.prompts.boxes.size(), 1u);
    EXPECT_TRUE(g.prompts.boxes[0].text.contains("missing.qzv"));
    EXPECT_EQ(g.text(0, Col::Power), "low");
}

TEST(Ports, TheListMenuAndPickerFollowThePortControl) {
    WindowFixture f;
    QComboBox* list = f.find<QComboBox>("Combo18");
    EXPECT_EQ(items(list), QStringList{"sim"});
    EXPECT_EQ(list->itemData(0, Qt::ToolTipRole).toString(), "sim");
    EXPECT_TRUE(f.find<QAction>("com1")->isChecked());
    EXPECT_EQ(f.find<QAction>("com1")->toolTip(), "sim");

    // A port without a device: the warning, no check mark, the port closed.
    f.find<QAction>("com3")->trigger();
    EXPECT_EQ(f.prompts.boxTexts(), QStringList{"COM error"});
    EXPECT_FALSE(f.find<QAction>("com1")->isChecked());
    EXPECT_FALSE(f.find<QAction>("com3")->isChecked());
    EXPECT_FALSE(f.port.isOpen());
    EXPECT_EQ(f.find<QLabel>("Panel1")->text(), "COM Closed");

    // The scan lists what opens, and leaves the port closed; the list opens it again.
    QTest::mouseClick(f.find<QPushButton>("Command3"), Qt::LeftButton);
    EXPECT_EQ(items(list), QStringList{"sim"});
    f.choose("Combo18", 0);
    EXPECT_TRUE(f.port.isOpen());
    EXPECT_EQ(f.find<QLabel>("Panel1")->text(), "COM1");

    // "comx": the picker preselects 17 the first time.
    f.find<QAction>("comx")->trigger();
    auto* picker = f.window->findChild<QDialog*>(QStringLiteral("Form13"));
    ASSERT_NE(picker, nullptr);
    auto* numbers = picker->findChild<QComboBox*>(QStringLiteral("Combo1"));
    EXPECT_EQ(numbers->count(), 65);
    EXPECT_EQ(numbers->currentIndex(), 17);
    numbers->setCurrentIndex(1);
    QTest::mouseClick(picker->findChild<QPushButton*>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_TRUE(f.find<QAction>("comx")->isChecked());
    EXPECT_EQ(f.prompts.boxTexts().last(), "COM1  OK");
}

}  // namespace

TEST(EngineeringWindows, EachMenuItemOpensOneModelessInstance) {
    WindowFixture f(startupDocument(UiLanguage::Chinese));
    for (const char* item : {"crs", "RFReg_Test", "gcms", "yjx", "ypcs", "mp3", "xid", "csms"}) {
        SCOPED_TRACE(item);
        QAction* action = f.find<QAction>(item);
        ASSERT_TRUE(action->isEnabled());
        action->trigger();
        action->trigger();
    }
    for (const char* form :
         {"Form14", "Form9", "Form3", "Form10", "Form7", "Form11", "Form6", "Form4"}) {
        SCOPED_TRACE(form);
        const QList<QWidget*> windows = f.window->findChildren<QWidget*>(QString::fromLatin1(form));
        ASSERT_EQ(windows.size(), 1);
        EXPECT_TRUE(windows[0]->isVisible());
        EXPECT_TRUE(windows[0]->isWindow());
        EXPECT_EQ(windows[0]->windowModality(), Qt::NonModal);
    }
    // The engineering window's captions follow the language menu.
    auto* read = f.window->findChild<QWidget*>(QStringLiteral("Form3"))
                     ->findChild<QPushButton*>(QStringLiteral("Command1"));
    EXPECT_EQ(read->text(), "数据读取");
    auto* writeId = f.window->findChild<QWidget*>(QStringLiteral("Form6"))
                        ->findChild<QPushButton*>(QStringLiteral("Command1"));
    EXPECT_EQ(writeId->text(), "写ID");
    f.find<QAction>("eng")->trigger();
    EXPECT_EQ(read->text(), "Read");
    EXPECT_EQ(writeId->text(), "Write ID");
}

TEST(EngineeringWindows, TheVolumeWindowAnswersInTheLanguageOfTheMoment) {
    WindowFixture f(startupDocument(UiLanguage::Chinese));
    f.find<QAction>("ypcs")->trigger();
    auto* read = f.window->findChild<QWidget*>(QStringLiteral("Form7"))
                     ->findChild<QPushButton*>(QStringLiteral("Command1"));
    for (const char* expected : {"读取 OK", "Read OK"}) {
        const qsizetype before = f.prompts.boxTexts().size();
        read->click();
        ASSERT_TRUE(f.waitFor([&] { return f.prompts.boxTexts().size() > before; }));
        EXPECT_EQ(f.prompts.boxTexts().last(), QString::fromUtf8(expected));
        f.find<QAction>("eng")->trigger();
    }
}
