#include "mainwindow/main_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include "bootloader/ui/boot_loader_window.h"
#include "l10n/error_texts.h"
#include "l10n/window_texts.h"
#include "mainwindow/channel_grid_model.h"
#include "mainwindow/channel_grid_view.h"
#include "mainwindow/document_history.h"
#include "mainwindow/progress_window.h"
#include "mainwindow/splash_screen.h"
#include "service/ui/calibration_window.h"
#include "service/ui/crystal_window.h"
#include "service/ui/hardware_window.h"
#include "service/ui/identity_window.h"
#include "service/ui/register_window.h"
#include "service/ui/show_once.h"
#include "service/ui/test_mode_window.h"
#include "service/ui/volume_window.h"

using service_ui::showOnce;

namespace {

// The window opens at 15800 x 10000 twips; 1440 twips make an inch.
constexpr double kWidthInches = 15800.0 / 1440.0;
constexpr double kHeightInches = 10000.0 / 1440.0;
constexpr int kStatusTimerMs = 1000;
constexpr int kConfigWarningMs = 10000;

QString fixedText(const char* text) {
    return QString::fromUtf8(text);
}

}  // namespace

MainWindow::MainWindow(MainWindowSetup setup, SerialPort& port, Clock& clock,
                       WindowPrompts& prompts, QWidget* parent)
    : QMainWindow(parent),
      doc_(std::move(setup.document)),
      configPath_(setup.configPath),
      port_(port),
      prompts_(prompts),
      portControl_(port, std::move(setup.catalogue), statusRelay_, doc_.language),
      transport_(port, clock) {
    setObjectName(QStringLiteral("Form1"));
    history_ = new DocumentHistory(
        doc_, [this] { refreshDocumentViews(); }, this);
    gridModel_ = new ChannelGridModel(doc_, *history_, this);
    gridModel_->setNoticeHandler([this](const Notices& notices) { showNotices(notices); });

    buildMenus();
    // Undo and redo are keys only: the menu bar keeps the items the program always had.
    undoAction_ = new QAction(this);
    undoAction_->setObjectName(QStringLiteral("undo"));
    undoAction_->setShortcut(QKeySequence::Undo);
    redoAction_ = new QAction(this);
    redoAction_->setObjectName(QStringLiteral("redo"));
    redoAction_->setShortcut(QKeySequence::Redo);
    addActions({undoAction_, redoAction_});
    connect(undoAction_, &QAction::triggered, this, [this] { stepHistory(true); });
    connect(redoAction_, &QAction::triggered, this, [this] { stepHistory(false); });
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    layout->addWidget(buildSettingsPanel());

    gridFrame_ = new QGroupBox(central);
    gridFrame_->setObjectName(QStringLiteral("Frame1"));
    grid_ = new ChannelGridView(*gridModel_, gridFrame_);
    grid_->setObjectName(QStringLiteral("MSFlexGrid1"));
    grid_->delegate().setCustomToneHandler(
        [this](int slot, CodeDirection direction) { openCustomToneDialog(slot, direction); });
    auto* gridLayout = new QVBoxLayout(gridFrame_);
    gridLayout->setContentsMargins(4, 4, 4, 4);
    gridLayout->addWidget(grid_);
    layout->addWidget(gridFrame_, 1);
    layout->addWidget(buildEditPanel());
    setCentralWidget(central);

    statusPanel_ = new QLabel(this);
    statusPanel_->setObjectName(QStringLiteral("Panel1"));
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->addWidget(statusPanel_, 1);

    progress_ = new ProgressWindow(this);
    progress_->hide();
    connect(progress_, &ProgressWindow::closedByUser, this, &MainWindow::progressClosedByUser);

    statusTimer_.setParent(this);  // found by name, like the widgets
    statusTimer_.setObjectName(QStringLiteral("Timer1"));
    statusTimer_.setSingleShot(true);
    statusTimer_.setInterval(kStatusTimerMs);
    connect(&statusTimer_, &QTimer::timeout, this, &MainWindow::statusTimerTick);
    connect(&transport_, &LinkTransport::portLost, this, [this] {
        portControl_.showPortState();
        refreshPortViews();
    });

    startUp(setup.portToSelect);
    if (setup.configUnreadable) {
        // Over the port state for a while: the defaults apply, and the user should know why.
        statusBar()->showMessage(l10n::configWarning(*setup.configUnreadable, doc_.language),
                                 kConfigWarningMs);
    }
}

MainWindow::~MainWindow() {
    // A session still under way must not outlive the transport and document it works on.
    if (session_ && session_->isRunning()) session_->cancel();
    // Child widgets outlive the members; the grid and its model must go before the document.
    delete grid_;
    delete gridModel_;
    // So does the boot loader window, which cancels its operation on the transport.
    delete bootLoaderWindow_;
    // And the engineering windows, whose panels give up their requests on the channel.
    delete crystalWindow_;
    delete registerWindow_;
    delete hardwareWindow_;
    delete volumeWindow_;
    delete playerWindow_;
    delete identityWindow_;
    delete testModeWindow_;
    transport_.setTrace(nullptr);
}

void MainWindow::traceToFile(bool on) {
    transport_.setTrace(nullptr);
    trace_.reset();
    traceFile_.reset();
    if (!on) return;
    const QString path = prompts_.chooseSaveFile(QString::fromUtf8(l10n::fixed::kTraceFilter));
    auto file = std::make_unique<QFile>(path);
    if (path.isEmpty() ||
        !file->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        if (!path.isEmpty()) {
            prompts_.showMessage(
                warningBox(l10n::describeError(
                               Error::inFile(ErrorKind::CannotWrite, path, file->errorString()),
                               doc_.language),
                           doc_.language));
        }
        const QSignalBlocker quiet(traceAction_);
        traceAction_->setChecked(false);
        return;
    }
    traceFile_ = std::move(file);
    trace_ = std::make_unique<LinkTrace>(LinkTrace::fileSink(traceFile_.get()));
    transport_.setTrace(trace_.get());
}

void MainWindow::openBootLoader() {
    // One window, modeless; it borrows the link while an operation runs.
    if (!bootLoaderWindow_) {
        bootLoaderWindow_ = new BootLoaderWindow(transport_, prompts_, doc_.language, this);
    }
    bootLoaderWindow_->show();
    bootLoaderWindow_->raise();
    bootLoaderWindow_->activateWindow();
}

// The engineering windows share the one service channel; its messages speak the language the
// document has now, which a file load may have changed since the last switch.
template <typename Window, typename... Args>
void MainWindow::openEngineering(QPointer<Window>& window, Args&... args) {
    serviceChannel_.setLanguage(doc_.language);
    showOnce(window, this, serviceChannel_, args...);
}

void MainWindow::openCrystalWindow() {
    openEngineering(crystalWindow_);
}

void MainWindow::openRegisterWindow() {
    openEngineering(registerWindow_, prompts_);
}

void MainWindow::openIdentityWindow() {
    openEngineering(identityWindow_);
}

void MainWindow::openTestModeWindow() {
    openEngineering(testModeWindow_);
}

void MainWindow::openCalibrationWindow() {
    openEngineering(calibrationWindow_, prompts_);
}

void MainWindow::openHardwareWindow() {
    openEngineering(hardwareWindow_);
}

void MainWindow::openVolumeWindow() {
    openEngineering(volumeWindow_);
}

void MainWindow::openPlayerWindow() {
    openEngineering(playerWindow_);
}

void MainWindow::startUp(const std::optional<int>& portToSelect) {
    portControl_.openFirstScannedPort();
    // A machine without serial ports is no fault; a port found and then refused is.
    if (!portControl_.comboItems().isEmpty() && !port_.isOpen()) {
        prompts_.showMessage(
            warningBox(l10n::message(l10n::MessageId::MsgPortFault, doc_.language), doc_.language));
    }
    if (portToSelect) portControl_.com_sel(*portToSelect);
    if (!portToSelect || !port_.isOpen()) {
        Set_StBar(statusRelay_, l10n::MessageId::MsgPortClosed, doc_.language);
    }
    RESET_TEXT(doc_);

    const QScreen* screen = this->screen();
    const double dpi = screen ? screen->logicalDotsPerInch() : 96.0;
    resize(qRound(kWidthInches * dpi), qRound(kHeightInches * dpi));

    applyCaptions();
    refreshDocumentViews();
    refreshPortViews();
    statusTimer_.start();
}

void MainWindow::showWithSplash() {
    show();
    splash_ = new SplashScreen();
    splash_->adjustSize();
    splash_->move(frameGeometry().center() - splash_->rect().center());
    splash_->show();
    splash_->raise();
    splash_->setFocus();
}

void MainWindow::mousePressEvent(QMouseEvent* event) {
    if (splash_) splash_->close();
    QMainWindow::mousePressEvent(event);
}

QWidget* MainWindow::buildSettingsPanel() {
    auto* panel = new QGroupBox(this);
    panel->setObjectName(QStringLiteral("Frame2"));
    auto* layout = new QGridLayout(panel);
    int row = 0;
    for (SettingKey key : kAllSettings) {
        const int i = static_cast<int>(key);
        auto* label = new QLabel(panel);
        auto* box = new QComboBox(panel);
        box->setObjectName(QString::fromLatin1(selectorOf(key).objectName));
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(box, &QComboBox::activated, this,
                [this, key](int index) { settingChosen(key, index); });
        label->setBuddy(box);
        layout->addWidget(label, row, 0);
        layout->addWidget(box, row, 1);
        settingLabels_[i] = label;
        settingBoxes_[i] = box;
        ++row;
    }
    // The band only shows what config.ini chose.
    settingBoxes_[static_cast<int>(SettingKey::freqband)]->setEnabled(false);

    portList_ = new QComboBox(panel);
    portList_->setObjectName(QStringLiteral("Combo18"));
    connect(portList_, &QComboBox::activated, this, &MainWindow::portListChosen);
    scanButton_ = new QPushButton(fixedText(l10n::fixed::kScanPortsButton), panel);
    scanButton_->setObjectName(QStringLiteral("Command3"));
    connect(scanButton_, &QPushButton::clicked, this, &MainWindow::scanPorts);
    layout->addWidget(new QLabel(fixedText(l10n::fixed::kPortListLabel), panel), row, 0);
    layout->addWidget(portList_, row, 1);
    layout->addWidget(scanButton_, ++row, 1);
    layout->setRowStretch(++row, 1);
    return panel;
}

QWidget* MainWindow::buildEditPanel() {
    auto* column = new QWidget(this);
    auto* columnLayout = new QVBoxLayout(column);
    columnLayout->setContentsMargins(0, 0, 0, 0);

    editFrame_ = new QGroupBox(column);
    editFrame_->setObjectName(QStringLiteral("Frame3"));
    auto* layout = new QVBoxLayout(editFrame_);
    channelCountLabel_ = new QLabel(editFrame_);
    channelCountBox_ = new QComboBox(editFrame_);
    channelCountBox_->setObjectName(QStringLiteral("Combo12"));
    channelCountBox_->addItems(channelCountOptions());
    connect(channelCountBox_, &QComboBox::textActivated, this, &MainWindow::channelCountChosen);
    stepLabel_ = new QLabel(editFrame_);
    stepBox_ = new QComboBox(editFrame_);
    stepBox_->setObjectName(QStringLiteral("Combo13"));
    stepBox_->addItems(frequencyStepOptions());
    connect(stepBox_, &QComboBox::textActivated, this, &MainWindow::stepChosen);
    rxButton_ = new QPushButton(editFrame_);
    rxButton_->setObjectName(QStringLiteral("Command9"));
    txButton_ = new QPushButton(editFrame_);
    txButton_->setObjectName(QStringLiteral("Command10"));
    // The step and the two buttons only display values.
    for (QWidget* w : std::initializer_list<QWidget*>{stepBox_, rxButton_, txButton_}) {
        w->setEnabled(false);
    }
    for (QWidget* w : std::initializer_list<QWidget*>{channelCountLabel_, channelCountBox_,
                                                      stepLabel_, stepBox_, rxButton_, txButton_}) {
        layout->addWidget(w);
    }
    columnLayout->addWidget(editFrame_);
    columnLayout->addStretch(1);

    const auto addButton = [&](const char* name, void (MainWindow::*handler)()) {
        auto* button = new QPushButton(column);
        button->setObjectName(QString::fromLatin1(name));
        button->setMinimumHeight(32);
        connect(button, &QPushButton::clicked, this, handler);
        columnLayout->addWidget(button);
        return button;
    };
    readButton_ = addButton("Command2", &MainWindow::startRead);
    writeButton_ = addButton("Command1", &MainWindow::startWrite);
    openButton_ = addButton("Command5", &MainWindow::openFile);
    saveButton_ = addButton("Command6", &MainWindow::saveFile);
    return column;
}
