#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "l10n/language.h"
#include "link/port_catalogue.h"
#include "platform/serial_port.h"

class Prompts;

// Choosing, probing and opening the one port to the radio, with what the main window shows of
// it: the port menu's check mark (com1 … com16, or comx for any other number), the port
// drop-down (Combo18, "COM" + number for each port that opened at the last scan), the "COM X"
// dialog's choice, and the port texts of the status bar. The widgets only mirror this state.
class PortControl {
public:
    static constexpr int kScannedPorts = 16;
    static constexpr int kComxItem = 17;         // the menu item for numbers outside 1..16
    static constexpr int kComxDialogItems = 65;  // the "COM X" dialog offers "0" .. "64"

    PortControl(SerialPort& port, PortCatalogue catalogue, Prompts& prompts, UiLanguage language);

    void setLanguage(UiLanguage language) { language_ = language; }
    const PortCatalogue& catalogue() const { return catalogue_; }
    // A device found after start-up joins the catalogue; its number.
    int adoptDevice(const QString& device) { return catalogue_.add(device); }

    // (Re)opens the port on `number` at 9600,n,8,1 with both queues discarded and receive
    // events off. The error goes to the caller.
    PortOpenError Set_Com(int number);
    // A port chosen from the menu: opened, checked, and shown as "COM5"; a missing or busy
    // port gets the warning and leaves no menu item checked.
    void com_sel(int number);
    void com_check_clr() { checkedItem_ = 0; }
    void com_check_set(int number);
    // Probes COM1..COM16 by opening each, refills the drop-down and selects its first item.
    // The port is closed afterwards.
    void check_uart();
    bool check_ComIndex(int number);
    // Selects drop-down item `index` and returns its port number.
    int get_ComNum(int index);
    // The drop-down's selection changed to `index`; failures pass unnoticed.
    void Combo18_Click(int index);
    // A device given by its path (the command line's --port /dev/pts/4): opened and reported
    // like a menu choice, named by its number when the catalogue has one. Every failure is
    // warned about: a path typed by hand deserves an answer.
    PortOpenError selectDevice(const QString& device);
    // The port the command line names: a number as from the menu, a path or "sim" as devices.
    void select(const PortArgument& port, const QString& simulatorDevice);
    // The start-up sequence: scan, then open the first port found and check it.
    PortOpenError openFirstScannedPort();

    // The "COM X" dialog: the item it preselects when opened, and confirming an item.
    int comxDialogOpened();
    void comxDialogConfirmed(int index);

    // Timer1: the status bar shows whether the port is open.
    void showPortState();
    // The port failed under the program and the link has closed it.
    void portLost();

    // The menu item checked: 0 none, 1..16 comN, kComxItem comx.
    int checkedItem() const { return checkedItem_; }
    // The drop-down's items as shown ("COM5"), and the port numbers behind them.
    QStringList comboItems() const;
    const QList<int>& comboPorts() const { return comboPorts_; }
    int comboIndex() const { return comboIndex_; }
    QString comboText() const;
    // Tool-tip of a drop-down item: the device behind it.
    QString deviceToolTip(int index) const;
    int selectedPort() const { return selectedPort_; }
    int customPort() const { return customPort_; }

private:
    PortOpenError openDevice(const QString& device);
    void showPortNumber(int number);
    void warnPortFault();
    void selectComboItem(int index);

    SerialPort& port_;
    PortCatalogue catalogue_;
    Prompts& prompts_;
    UiLanguage language_;

    int checkedItem_ = 0;
    QList<int> comboPorts_;
    int comboIndex_ = -1;
    int comboPort_ = 0;           // the number the drop-down shows; 0: it shows nothing
    int selectedPort_ = 0;        // SelectedPort
    int customPort_ = kComxItem;  // CustomPort: 17 until the dialog is first confirmed
};
