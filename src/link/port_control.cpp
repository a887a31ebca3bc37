#include "link/port_control.h"

#include "l10n/program_texts.h"
#include "platform/prompts.h"

using l10n::MessageId;

namespace {

bool isWarnedAbout(PortOpenError error) {
    return error == PortOpenError::NoSuchPort || error == PortOpenError::PortInUse;
}

QString comName(int number) {
    return QStringLiteral("COM%1").arg(number);
}

}  // namespace

PortControl::PortControl(SerialPort& port, PortCatalogue catalogue, Prompts& prompts,
                         UiLanguage language)
    : port_(port), catalogue_(std::move(catalogue)), prompts_(prompts), language_(language) {}

PortOpenError PortControl::Set_Com(int number) {
    if (port_.isOpen()) port_.close();
    const QString device = catalogue_.deviceFor(number);
    if (device.isEmpty()) return PortOpenError::NoSuchPort;
    return openDevice(device);
}

PortOpenError PortControl::openDevice(const QString& device) {
    const PortOpenError error = port_.open(device);
    if (error != PortOpenError::None) return error;
    port_.discardInput();
    port_.discardOutput();
    port_.setReceiveNotification(false);  // a sender turns it on when it wants a reply
    return PortOpenError::None;
}

void PortControl::com_sel(int number) {
    const PortOpenError error = Set_Com(number);
    if (error == PortOpenError::None) {
        com_check_clr();
        com_check_set(number);
        showPortNumber(number);
        return;
    }
    if (!isWarnedAbout(error)) return;
    warnPortFault();
    Set_StBar(prompts_, MessageId::MsgPortClosed, language_);
    com_check_clr();
    comboPort_ = 0;
}

void PortControl::com_check_set(int number) {
    checkedItem_ = number >= 1 && number <= kScannedPorts ? number : kComxItem;
    check_ComIndex(number);
}

void PortControl::check_uart() {
    comboPorts_.clear();
    comboIndex_ = -1;
    comboPort_ = 0;
    port_.close();
    for (int number = 1; number <= kScannedPorts; ++number) {
        const QString device = catalogue_.deviceFor(number);
        if (device.isEmpty()) continue;
        if (port_.open(device) == PortOpenError::None) comboPorts_ << number;
        port_.close();
    }
    if (!comboPorts_.isEmpty()) selectComboItem(0);
}

bool PortControl::check_ComIndex(int number) {
    for (int i = 0; i < std::min<int>(kScannedPorts, comboPorts_.size()); ++i) {
        if (comboPorts_.at(i) == number) {
            selectComboItem(i);
            return true;
        }
    }
    return false;
}

int PortControl::get_ComNum(int index) {
    selectComboItem(index);
    return comboPort_;
}

void PortControl::Combo18_Click(int index) {
    port_.close();
    selectComboItem(index);
    if (comboIndex_ == -1) return;
    const int number = comboPort_;
    com_check_clr();
    Set_Com(number);  // a failure here is passed over, as every step of this choice
    com_check_set(number);
    showPortNumber(number);
}

PortOpenError PortControl::selectDevice(const QString& device) {
    if (port_.isOpen()) port_.close();
    const PortOpenError error = openDevice(device);
    com_check_clr();
    if (error == PortOpenError::None) {
        const std::optional<int> number = catalogue_.numberOf(device);
        if (number) com_check_set(*number);
        Set_StBar(prompts_, MessageId::MsgPortLabel, language_,
                  number ? QString::number(*number) : QLatin1Char(' ') + device);
    } else {
        warnPortFault();
        Set_StBar(prompts_, MessageId::MsgPortClosed, language_);
    }
    return error;
}

void PortControl::select(const PortArgument& port, const QString& simulatorDevice) {
    switch (port.kind) {
        case PortArgument::Number:
            com_sel(port.number);
            return;
        case PortArgument::Simulator:
            selectDevice(simulatorDevice);
            return;
        case PortArgument::Device:
            selectDevice(port.device);
            return;
    }
}

PortOpenError PortControl::openFirstScannedPort() {
    check_uart();
    const int number = get_ComNum(0);
    const PortOpenError error = Set_Com(number);
    if (error == PortOpenError::None) com_check_set(number);
    return error;
}

int PortControl::comxDialogOpened() {
    if (checkedItem_ != kComxItem) customPort_ = kComxItem;
    return customPort_;
}

void PortControl::comxDialogConfirmed(int index) {
    selectedPort_ = index;
    const PortOpenError error = Set_Com(selectedPort_);
    if (error == PortOpenError::None) {
        com_check_clr();
        customPort_ = selectedPort_;
        checkedItem_ = kComxItem;
        showPortNumber(selectedPort_);
        prompts_.showMessage({comName(selectedPort_) + QStringLiteral("  OK"),
                              l10n::message(MessageId::MsgPortLabel, language_)});
        return;
    }
    if (!isWarnedAbout(error)) return;
    warnPortFault();
    Set_StBar(prompts_, MessageId::MsgPortClosed, language_);
    com_check_clr();
}

void PortControl::showPortState() {
    Set_StBar(prompts_, port_.isOpen() ? MessageId::MsgPortOpen : MessageId::MsgPortClosed,
              language_);
}

void PortControl::portLost() {
    Set_StBar(prompts_, MessageId::MsgPortClosed, language_);
}

QString PortControl::deviceToolTip(int index) const {
    if (index < 0 || index >= comboPorts_.size()) return {};
    return catalogue_.deviceFor(comboPorts_.at(index));
}

QStringList PortControl::comboItems() const {
    QStringList items;
    for (int number : comboPorts_) items << comName(number);
    return items;
}

QString PortControl::comboText() const {
    return comboPort_ == 0 ? QString() : comName(comboPort_);
}

void PortControl::showPortNumber(int number) {
    Set_StBar(prompts_, MessageId::MsgPortLabel, language_, QString::number(number));
}

void PortControl::warnPortFault() {
    // The radio tool's words first, then the system's, and what to do about missing rights.
    QString text = l10n::message(MessageId::MsgPortFault, language_);
    if (!port_.openErrorDetail().isEmpty()) text += QLatin1Char('\n') + port_.openErrorDetail();
    if (port_.openPermissionDenied()) {
        text +=
            QLatin1Char('\n') + l10n::programText(l10n::ProgramText::PortPermissionHint, language_);
    }
    prompts_.showMessage(warningBox(text, language_));
}

void PortControl::selectComboItem(int index) {
    if (index < 0 || index >= comboPorts_.size()) return;  // an empty list selects nothing
    comboIndex_ = index;
    comboPort_ = comboPorts_.at(index);
}
