#include "service/ui/test_mode_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "l10n/production_texts.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;
namespace texts = l10n::fixed;

namespace {

QLineEdit* display(const char* name) {
    auto* edit = named(new QLineEdit(QStringLiteral("0")), name);
    edit->setReadOnly(true);
    // Only shows: the keyboard passes it by, a click still selects to copy.
    edit->setFocusPolicy(Qt::ClickFocus);
    edit->setMaximumWidth(90);
    return edit;
}

}  // namespace

TestModeWindow::TestModeWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), panel_(channel) {
    setObjectName(QStringLiteral("Form4"));
    setWindowTitle(fixed(texts::kTestWindowTitle));

    auto button = [this](const char* caption, const char* name) {
        auto* b = named(new QPushButton(fixed(caption)), name);
        buttons_ << b;
        return b;
    };

    rssiEdit_ = display("Text1");
    snrEdit_ = display("Text2");
    afcEdit_ = display("Text3");
    audioEdit_ = display("Text4");
    auto* rssiGroup = new QGroupBox(fixed(texts::kRssiFrame));
    auto* rssiLayout = new QGridLayout(rssiGroup);
    const std::pair<const char*, QLineEdit*> rows[] = {{texts::kRssiLabel, rssiEdit_},
                                                       {texts::kSnrLabel, snrEdit_},
                                                       {texts::kAfcLabel, afcEdit_},
                                                       {texts::kAudioLabel, audioEdit_}};
    int row = 0;
    for (const auto& [caption, edit] : rows) {
        const QByteArray name = "Label" + QByteArray::number(row + 1);
        rssiLayout->addWidget(named(new QLabel(fixed(caption)), name.constData()), row, 0);
        rssiLayout->addWidget(edit, row++, 1);
    }
    QPushButton* rssiStart = button(texts::kMonitorStart, "Command1");
    QPushButton* rssiStop = button(texts::kMonitorStop, "Command2");
    rssiLayout->addWidget(rssiStart, 0, 2);
    rssiLayout->addWidget(rssiStop, 1, 2);

    batteryEdit_ = display("Text5");
    indicator_ = named(new QFrame, "Shape1");
    indicator_->setFixedSize(18, 18);
    indicator_->setAutoFillBackground(true);
    indicator_->setFrameShape(QFrame::Box);
    auto* batteryGroup = new QGroupBox(fixed(texts::kBatteryFrame));
    auto* batteryLayout = new QGridLayout(batteryGroup);
    batteryLayout->addWidget(batteryEdit_, 0, 0, 1, 2);
    batteryLayout->addWidget(indicator_, 1, 0);
    batteryLayout->addWidget(new QLabel(fixed(texts::kChargingLabel)), 1, 1);
    QPushButton* batteryStart = button(texts::kMonitorStart, "Command3");
    QPushButton* batteryStop = button(texts::kMonitorStop, "Command4");
    batteryLayout->addWidget(batteryStart, 0, 2);
    batteryLayout->addWidget(batteryStop, 1, 2);

    testType_ = named(new QComboBox, "Combo1");
    testType_->addItems({fixed(texts::kDtmfTransmitTest), fixed(texts::kDtmfReceiveTest)});
    testType_->setCurrentIndex(0);
    auto* testGroup = new QGroupBox(fixed(texts::kTestFrame));
    auto* testForm = new QFormLayout;
    testForm->addRow(fixed(texts::kTestTypeLabel), testType_);
    testForm->addRow(fixed(texts::kParameter1), named(new QLineEdit, "Text6"));
    testForm->addRow(fixed(texts::kParameter2), named(new QLineEdit, "Text7"));
    auto* testButtons = new QVBoxLayout;
    QPushButton* testStart = button(texts::kTestStart, "Command5");
    QPushButton* testStop = button(texts::kTestStop, "Command6");
    testButtons->addWidget(testStart);
    testButtons->addWidget(testStop);
    testButtons->addStretch(1);
    auto* testLayout = new QHBoxLayout(testGroup);
    testLayout->addLayout(testForm);
    testLayout->addLayout(testButtons);

    liveState_ = named(new QLabel, "liveState");
    auto* top = new QHBoxLayout;
    top->addWidget(rssiGroup);
    top->addWidget(batteryGroup);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(testGroup);
    layout->addWidget(liveState_);

    setIndicator(palette().color(QPalette::Button));
    // The displays only show; the keyboard starts on the first "start".
    rssiStart->setFocus();

    connect(rssiStart, &QPushButton::clicked, this,
            [this] { panel_.startMonitor(MonitorMode::Rssi); });
    connect(batteryStart, &QPushButton::clicked, this,
            [this] { panel_.startMonitor(MonitorMode::Battery); });
    for (QPushButton* stop : {rssiStop, batteryStop}) {
        connect(stop, &QPushButton::clicked, &panel_, &TestModePanel::stopMonitor);
    }
    connect(testStart, &QPushButton::clicked, this,
            [this] { panel_.startTest(testType_->currentIndex()); });
    connect(testStop, &QPushButton::clicked, &panel_, &TestModePanel::stopTest);
    connect(&panel_, &TestModePanel::measured, this, &TestModeWindow::showFrame);
    connect(&panel_, &TestModePanel::liveChanged, this,
            [this](MonitorMode, bool byOther) { showLive(byOther); });
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        for (QPushButton* b : buttons_) b->setEnabled(!running);
    });
}

TestModeWindow::~TestModeWindow() {
    // Before the buttons the panel's end would touch are gone.
    panel_.cancel();
}

void TestModeWindow::closeEvent(QCloseEvent* event) {
    // The radio would go on streaming to nobody.
    if (panel_.monitor() != MonitorMode::Stop) {
        panel_.cancel();
        panel_.stopMonitor();
    }
    QWidget::closeEvent(event);
}

void TestModeWindow::showFrame(const MonitorFrame& frame) {
    if (frame.kind == MonitorMode::Rssi) {
        rssiEdit_->setText(QString::number(frame.rssi.rssi));
        snrEdit_->setText(QString::number(frame.rssi.snr));
        afcEdit_->setText(QString::number(frame.rssi.afc));
        audioEdit_->setText(QString::number(frame.rssi.audio));
        return;
    }
    setIndicator(frame.battery.charging ? QColor(255, 0, 0) : QColor(0, 255, 0));
    batteryEdit_->setText(QString::number(frame.battery.value));
}

void TestModeWindow::showLive(bool byOther) {
    liveState_->setText(
        byOther ? l10n::productionText(l10n::ProductionText::MonitorEnded, channel_.language())
                : QString());
}

void TestModeWindow::setIndicator(const QColor& colour) {
    QPalette palette = indicator_->palette();
    palette.setColor(QPalette::Window, colour);
    indicator_->setPalette(palette);
}
