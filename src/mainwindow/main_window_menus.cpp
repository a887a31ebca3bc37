#include <QActionGroup>
#include <QMenuBar>

#include "l10n/window_texts.h"
#include "mainwindow/main_window.h"
#include "persistence/config_file.h"

// The menu bar as the program always had it; captions come with the language (applyCaptions).

namespace {

QAction* addNamedAction(QMenu* menu, const char* objectName) {
    QAction* action = menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(objectName));
    return action;
}

QString fixedText(const char* text) {
    return QString::fromUtf8(text);
}

}  // namespace

void MainWindow::buildMenus() {
    fileMenu_ = menuBar()->addMenu(QString());
    fileMenu_->setObjectName(QStringLiteral("MenuFile"));
    openAction_ = addNamedAction(fileMenu_, "MenuFileOpen");
    saveAction_ = addNamedAction(fileMenu_, "MenuSave");
    fileMenu_->addSeparator();
    importCsvAction_ = addNamedAction(fileMenu_, "MenuImportCsv");
    exportCsvAction_ = addNamedAction(fileMenu_, "MenuExportCsv");
    connect(importCsvAction_, &QAction::triggered, this, &MainWindow::importCsv);
    connect(exportCsvAction_, &QAction::triggered, this, &MainWindow::exportCsv);
    fileMenu_->addSeparator();
    exitAction_ = addNamedAction(fileMenu_, "FormCancel");
    exitAction_->setCheckable(true);  // checked while the exit question is open
    connect(openAction_, &QAction::triggered, this, &MainWindow::openFile);
    connect(saveAction_, &QAction::triggered, this, &MainWindow::saveFile);
    connect(exitAction_, &QAction::triggered, this, [this] {
        statusTimer_.stop();
        exitAction_->setChecked(true);
        close();
    });

    setupMenu_ = menuBar()->addMenu(QString());
    setupMenu_->setObjectName(QStringLiteral("chuankoushezhi"));
    portMenu_ = setupMenu_->addMenu(QString());
    portMenu_->setObjectName(QStringLiteral("com"));
    portMenu_->setToolTipsVisible(true);  // each port's device
    for (int number = 1; number <= PortControl::kScannedPorts; ++number) {
        QAction* item =
            portMenu_->addAction(fixedText(l10n::fixed::kComItemPrefix) + QString::number(number));
        item->setObjectName(QStringLiteral("com%1").arg(number));
        item->setCheckable(true);
        connect(item, &QAction::triggered, this, [this, number] { portMenuChosen(number); });
        portActions_[number] = item;
    }
    QAction* comx = portMenu_->addAction(fixedText(l10n::fixed::kComxItem));
    comx->setObjectName(QStringLiteral("comx"));
    comx->setCheckable(true);
    connect(comx, &QAction::triggered, this, &MainWindow::openPortPicker);
    portActions_[PortControl::kComxItem] = comx;

    rateMenu_ = setupMenu_->addMenu(QString());
    rateMenu_->setObjectName(QStringLiteral("botelv"));
    QAction* rate = rateMenu_->addAction(fixedText(l10n::fixed::kRateItem));
    rate->setCheckable(true);
    rate->setChecked(true);
    otherAction_ = addNamedAction(setupMenu_, "qita");
    setupMenu_->addSeparator();
    modelMenu_ = setupMenu_->addMenu(QString());
    modelMenu_->setObjectName(QStringLiteral("jixinxinxi"));
    QAction* model = modelMenu_->addAction(fixedText(l10n::fixed::kModelItem));
    model->setCheckable(true);
    model->setChecked(true);
    setupMenu_->addSeparator();
    traceAction_ = addNamedAction(setupMenu_, "TraceToFile");
    traceAction_->setCheckable(true);
    connect(traceAction_, &QAction::toggled, this, &MainWindow::traceToFile);
    // Both on unless config.ini says otherwise; a change is remembered there.
    const SafeWritePreferences safety = readSafeWritePreferences(configPath_);
    backupAction_ = addNamedAction(setupMenu_, "BackupBeforeWrite");
    verifyAction_ = addNamedAction(setupMenu_, "VerifyAfterWrite");
    backupAction_->setCheckable(true);
    backupAction_->setChecked(safety.backup);
    verifyAction_->setCheckable(true);
    verifyAction_->setChecked(safety.verify);
    for (QAction* item : {backupAction_, verifyAction_}) {
        connect(item, &QAction::toggled, this, &MainWindow::rememberSafeWrite);
    }
    cableCheckAction_ = addNamedAction(setupMenu_, "CableCheck");
    connect(cableCheckAction_, &QAction::triggered, this, &MainWindow::openCableCheck);
    setupMenu_->addSeparator();

    programMenu_ = menuBar()->addMenu(QString());
    programMenu_->setObjectName(QStringLiteral("xie"));
    programMenu_->addSeparator();
    readAction_ = addNamedAction(programMenu_, "WriteChn");
    programMenu_->addSeparator();
    writeAction_ = addNamedAction(programMenu_, "StartWrite");
    connect(readAction_, &QAction::triggered, this, &MainWindow::startRead);
    connect(writeAction_, &QAction::triggered, this, &MainWindow::startWrite);
    // The engineering windows hang here; those not yet part of this program rest disabled.
    programMenu_->addSeparator();
    engineeringAction_ = addNamedAction(programMenu_, "gcms");
    connect(engineeringAction_, &QAction::triggered, this, &MainWindow::openCalibrationWindow);
    programMenu_->addSeparator();
    audioTestAction_ = addNamedAction(programMenu_, "ypcs");
    connect(audioTestAction_, &QAction::triggered, this, &MainWindow::openVolumeWindow);
    programMenu_->addSeparator();
    testModeAction_ = addNamedAction(programMenu_, "csms");
    connect(testModeAction_, &QAction::triggered, this, &MainWindow::openTestModeWindow);
    for (const auto& [name, caption] : {std::pair{"RFReg_Test", l10n::fixed::kRegisterTestItem},
                                        {"yjx", l10n::fixed::kHardwareItem},
                                        {"mp3", l10n::fixed::kMp3Item},
                                        {"crs", l10n::fixed::kCrystalItem}}) {
        programMenu_->addSeparator();
        QAction* item = addNamedAction(programMenu_, name);
        item->setText(fixedText(caption));
        if (QLatin1String(name) == QLatin1String("crs")) {
            connect(item, &QAction::triggered, this, &MainWindow::openCrystalWindow);
        } else if (QLatin1String(name) == QLatin1String("RFReg_Test")) {
            connect(item, &QAction::triggered, this, &MainWindow::openRegisterWindow);
        } else if (QLatin1String(name) == QLatin1String("yjx")) {
            connect(item, &QAction::triggered, this, &MainWindow::openHardwareWindow);
        } else if (QLatin1String(name) == QLatin1String("mp3")) {
            connect(item, &QAction::triggered, this, &MainWindow::openPlayerWindow);
        } else {
            item->setEnabled(false);
        }
    }
    programMenu_->addSeparator();
    identityAction_ = addNamedAction(programMenu_, "xid");
    connect(identityAction_, &QAction::triggered, this, &MainWindow::openIdentityWindow);
    programMenu_->addSeparator();
    QAction* bootLoader = addNamedAction(programMenu_, "prg");
    bootLoader->setText(fixedText(l10n::fixed::kBootLoaderItem));
    connect(bootLoader, &QAction::triggered, this, &MainWindow::openBootLoader);

    languageMenu_ = menuBar()->addMenu(QString());
    languageMenu_->setObjectName(QStringLiteral("lang"));
    auto* languages = new QActionGroup(this);
    chineseAction_ = addNamedAction(languageMenu_, "chn");
    chineseAction_->setText(fixedText(l10n::fixed::kChineseItem));
    englishAction_ = addNamedAction(languageMenu_, "eng");
    englishAction_->setText(fixedText(l10n::fixed::kEnglishItem));
    for (QAction* item : {chineseAction_, englishAction_}) {
        item->setCheckable(true);
        languages->addAction(item);
    }
    (doc_.language == UiLanguage::English ? englishAction_ : chineseAction_)->setChecked(true);
    connect(chineseAction_, &QAction::triggered, this,
            [this] { switchLanguage(UiLanguage::Chinese); });
    connect(englishAction_, &QAction::triggered, this,
            [this] { switchLanguage(UiLanguage::English); });
}
