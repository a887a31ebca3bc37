#pragma once

#include <QDialog>
#include <QStringList>
#include <QTimer>
#include <functional>

#include "doctor/port_finder.h"
#include "l10n/language.h"

class QComboBox;
class QLabel;
class QPushButton;

// The "COM X" dialog (Form13): any port number 0..64. It stays open after a choice.
// Below it, "Find my cable": the user unplugs or plugs in the cable and the dialog names the
// port that came or went, re-listing the ports once a second meanwhile.
class PortPickerDialog : public QDialog {
    Q_OBJECT

public:
    using PortLister = std::function<QStringList()>;
    static constexpr int kRescanMs = 1000;

    explicit PortPickerDialog(QWidget* parent = nullptr, PortLister listPorts = {});

    void preselect(int number);
    void setLanguage(UiLanguage language);
    QComboBox& numbers() { return *numbers_; }
    QLabel& finderStatus() { return *finderStatus_; }
    bool finderRunning() const { return rescan_.isActive(); }

Q_SIGNALS:
    void chosen(int number);
    // The port finder settled on the cable's device.
    void cableFound(const QString& device);

protected:
    // A closed dialog stops looking.
    void hideEvent(QHideEvent* event) override;

private:
    void startFinder();
    void rescan();
    void showFinderStep();

    QComboBox* numbers_;
    QPushButton* findCable_;
    QLabel* finderStatus_;
    PortLister listPorts_;
    PortFinder finder_;
    QTimer rescan_;
    UiLanguage language_ = UiLanguage::Chinese;
};
