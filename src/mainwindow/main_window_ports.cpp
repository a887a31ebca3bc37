#include <QAction>
#include <QComboBox>
#include <QProgressBar>

#include "doctor/diagnosis.h"
#include "doctor/radio_probe.h"
#include "doctor/report_text.h"
#include "l10n/window_texts.h"
#include "mainwindow/cable_check_dialog.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_picker_dialog.h"
#include "mainwindow/port_with_simulator.h"
#include "mainwindow/progress_window.h"

void MainWindow::refreshPortViews() {
    for (int item = 1; item <= PortControl::kComxItem; ++item) {
        portActions_[item]->setChecked(portControl_.checkedItem() == item);
        if (item < PortControl::kComxItem) {
            portActions_[item]->setToolTip(portControl_.catalogue().deviceFor(item));
        }
    }
    const QSignalBlocker quiet(portList_);
    portList_->clear();
    const QStringList& items = portControl_.comboItems();
    for (int i = 0; i < items.size(); ++i) {
        const QString device = portControl_.deviceToolTip(i);
        const bool simulator = device == PortWithSimulator::simulatorDevice();
        portList_->addItem(simulator ? QString::fromUtf8(l10n::fixed::kSimulatorPortItem)
                                     : items.at(i));
        portList_->setItemData(i, device, Qt::ToolTipRole);
    }
    const bool shown = !portControl_.comboText().isEmpty();
    portList_->setCurrentIndex(shown ? portControl_.comboIndex() : -1);
    portList_->setToolTip(shown ? portControl_.deviceToolTip(portControl_.comboIndex())
                                : QString());
}

void MainWindow::portMenuChosen(int number) {
    portControl_.com_sel(number);
    refreshPortViews();
}

void MainWindow::portListChosen(int index) {
    portControl_.Combo18_Click(index);
    refreshPortViews();
}

void MainWindow::scanPorts() {
    portControl_.check_uart();
    refreshPortViews();
    statusTimer_.start();  // the scan leaves the port closed; the status bar says so shortly
}

void MainWindow::openPortPicker() {
    // The menu's check mark follows the port, not the click that opened the dialog.
    refreshPortViews();
    if (!portPicker_) {
        portPicker_ = new PortPickerDialog(this);
        connect(portPicker_, &PortPickerDialog::chosen, this, [this](int number) {
            portControl_.comxDialogConfirmed(number);
            refreshPortViews();
        });
        connect(portPicker_, &PortPickerDialog::cableFound, this, &MainWindow::cableFound);
    }
    portPicker_->setLanguage(doc_.language);
    portPicker_->preselect(portControl_.comxDialogOpened());
    portPicker_->show();
    portPicker_->raise();
    portPicker_->activateWindow();
}

void MainWindow::cableFound(const QString& device) {
    if (sessionRunning()) return;
    const int number = portControl_.adoptDevice(device);
    portControl_.check_uart();  // the drop-down lists the cable too
    portControl_.selectDevice(device);
    refreshPortViews();
    if (portPicker_ && number < PortControl::kComxDialogItems) portPicker_->preselect(number);
}

void MainWindow::openCableCheck() {
    const RootedSystemFacts facts;
    QString device = port_.device();
    if (!device.isEmpty() && !device.startsWith(QLatin1Char('/')) &&
        device != PortWithSimulator::simulatorDevice()) {
        device.prepend(QStringLiteral("/dev/"));  // QSerialPort names ports without /dev/
    }
    auto diagnosis = std::make_shared<Diagnosis>(
        diagnose(facts, device.startsWith(QLatin1Char('/')) ? QStringList{device} : QStringList{}));
    auto* dialog =
        new CableCheckDialog(diagnosisLines(*diagnosis, doc_.language), doc_.language, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &CableCheckDialog::probeRequested, this, [this, dialog, diagnosis, device] {
        if (!port_.isOpen()) {
            dialog->appendLines(
                probeLines(reportUnopenedPort(device, port_.openErrorDetail()), doc_.language));
            return;
        }
        auto* probe = new RadioProbe(transport_, dialog);
        if (sessionRunning() || !probe->start()) {  // the link is someone else's just now
            delete probe;
            return;
        }
        dialog->setProbeEnabled(false);
        connect(probe, &RadioProbe::finished, dialog, [this, dialog, diagnosis, device, probe] {
            dialog->appendLines(probeLines(
                reportProbe(device, *probe, *diagnosis, RootedSystemFacts()), doc_.language));
            dialog->setProbeEnabled(true);
            probe->deleteLater();
        });
    });
    dialog->show();
}

void MainWindow::statusTimerTick() {
    portControl_.showPortState();
    progress_->bar().setValue(0);
}
