#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "l10n/csv_texts.h"
#include "l10n/doctor_texts.h"
#include "l10n/error_texts.h"
#include "l10n/safe_write_texts.h"
#include "l10n/session_texts.h"
#include "l10n/window_texts.h"
#include "mainwindow/channel_grid_model.h"
#include "mainwindow/channel_grid_view.h"
#include "mainwindow/custom_tone_dialog.h"
#include "mainwindow/document_history.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_picker_dialog.h"
#include "model/presets.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"

namespace {

// Caption-table entries of the main window's own widgets.
enum : int {
    kMenuFile = 1,
    kMenuOpen,
    kMenuSave,
    kMenuExit,
    kMenuSetup,
    kMenuPort,
    kMenuRate,
    kMenuOther,
    kMenuModel,
    kMenuProgram,
    kMenuRead,
    kMenuWrite,
    kMenuEngineering,
    kMenuTestMode,
    kMenuIdentity,
    kMenuLanguage,
    kButtonOpen,
    kButtonSave,
    kGridFrame = 39,
    kEditFrame = 47,
    kChannelCountLabel,
    kStepLabel,
    kButtonRx,
    kButtonTx,
    kButtonWrite,
    kButtonRead,
    kMenuAudioTest = 58,
};

}  // namespace

void MainWindow::applyCaptions() {
    const UiLanguage language = doc_.language;
    const auto caption = [language](int index) { return l10n::caption(index, language); };
    setWindowTitle(caption(l10n::CapWindowTitle) + QLatin1String(l10n::kTitleSuffix));

    fileMenu_->setTitle(caption(kMenuFile));
    openAction_->setText(caption(kMenuOpen));
    saveAction_->setText(caption(kMenuSave));
    importCsvAction_->setText(l10n::importCsvMenuItem(language));
    exportCsvAction_->setText(l10n::exportCsvMenuItem(language));
    exitAction_->setText(caption(kMenuExit));
    setupMenu_->setTitle(caption(kMenuSetup));
    portMenu_->setTitle(caption(kMenuPort));
    rateMenu_->setTitle(caption(kMenuRate));
    otherAction_->setText(caption(kMenuOther));
    modelMenu_->setTitle(caption(kMenuModel));
    traceAction_->setText(l10n::sessionText(l10n::SessionText::TraceMenuItem, language));
    backupAction_->setText(l10n::safeWriteText(l10n::SafeWriteText::BackupMenuItem, language));
    verifyAction_->setText(l10n::safeWriteText(l10n::SafeWriteText::VerifyMenuItem, language));
    cableCheckAction_->setText(l10n::doctorText(l10n::DoctorText::CableCheckItem, language));
    if (portPicker_) portPicker_->setLanguage(language);
    programMenu_->setTitle(caption(kMenuProgram));
    readAction_->setText(caption(kMenuRead));
    writeAction_->setText(caption(kMenuWrite));
    engineeringAction_->setText(caption(kMenuEngineering));
    testModeAction_->setText(caption(kMenuTestMode));
    audioTestAction_->setText(caption(kMenuAudioTest));
    identityAction_->setText(caption(kMenuIdentity));
    languageMenu_->setTitle(caption(kMenuLanguage));

    openButton_->setText(caption(kButtonOpen));
    saveButton_->setText(caption(kButtonSave));
    fillSettingLists();
    for (SettingKey key : kAllSettings) {
        settingLabels_[static_cast<int>(key)]->setText(settingLabel(key, language));
    }
    gridFrame_->setTitle(caption(kGridFrame));
    editFrame_->setTitle(caption(kEditFrame));
    channelCountLabel_->setText(caption(kChannelCountLabel));
    stepLabel_->setText(caption(kStepLabel));
    rxButton_->setText(caption(kButtonRx));
    txButton_->setText(caption(kButtonTx));
    writeButton_->setText(caption(kButtonWrite));
    readButton_->setText(caption(kButtonRead));
    gridModel_->refresh();
    redrawStatus();
}

void MainWindow::fillSettingLists() {
    for (SettingKey key : kAllSettings) {
        QComboBox* box = settingBoxes_[static_cast<int>(key)];
        const QSignalBlocker quiet(box);
        box->clear();
        box->addItems(settingOptions(key, doc_.language));
    }
}

void MainWindow::refreshDocumentViews() {
    // Show_Combo: every selector shows its stored setting.
    for (SettingKey key : kAllSettings) {
        QComboBox* box = settingBoxes_[static_cast<int>(key)];
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(
            Show_Combo(key, doc_.settings[key], doc_.language).isEmpty() ? -1 : doc_.settings[key]);
    }
    {
        const QSignalBlocker quiet(channelCountBox_);
        channelCountBox_->setCurrentIndex(channelCountBox_->findText(doc_.chtot));
    }
    {
        const QSignalBlocker quiet(stepBox_);
        stepBox_->setCurrentIndex(stepBox_->findText(doc_.freqstep));
    }
    // The fixed-channel flag locks the channel table's shape.
    const bool free = !doc_.channelsFixed;
    channelCountBox_->setEnabled(free);
    settingBoxes_[static_cast<int>(SettingKey::freqsel)]->setEnabled(free);
    settingBoxes_[static_cast<int>(SettingKey::normalmode)]->setEnabled(free);
    gridModel_->refresh();
}

void MainWindow::switchLanguage(UiLanguage language) {
    closeGridEditor();
    chineseAction_->setChecked(language == UiLanguage::Chinese);
    englishAction_->setChecked(language == UiLanguage::English);
    WriteConfigFile(configPath_, QStringLiteral("Lang"), language);
    applyLanguage(doc_, language);
    portControl_.setLanguage(language);
    serviceChannel_.setLanguage(language);  // the engineering window's captions follow
    applyCaptions();
    refreshDocumentViews();
    refreshPortViews();
}

void MainWindow::settingChosen(SettingKey key, int index) {
    closeGridEditor();
    history_->record([&] { takeOverSetting(key, index); });
    refreshDocumentViews();
}

void MainWindow::takeOverSetting(SettingKey key, int index) {
    switch (key) {
        case SettingKey::freqsel:
            if (const std::optional<QString> title = applyStandard(doc_, index)) {
                setWindowTitle(*title);
            }
            break;
        case SettingKey::normalmode:
            switchMode(doc_, index);
            break;
        case SettingKey::freqband:
            applyBand(doc_, index);
            break;
        default:
            takeOverSelectorText(doc_.settings, key,
                                 settingBoxes_[static_cast<int>(key)]->itemText(index),
                                 doc_.language);
            break;
    }
}

void MainWindow::channelCountChosen(const QString& text) {
    closeGridEditor();
    history_->record([&] { setChannelCount(doc_, text); });
    refreshDocumentViews();
}

void MainWindow::stepChosen(const QString& text) {
    history_->record([&] {
        doc_.freqstep = text;
        RESET_FER(doc_);
    });
    refreshDocumentViews();
}

void MainWindow::showNotices(const Notices& notices) {
    for (const Notice& notice : notices) {
        statusRelay_.showMessage(warningBox(noticeText(notice, doc_.language), doc_.language));
    }
}

void MainWindow::openCustomToneDialog(int slot, CodeDirection direction) {
    auto* dialog = new CustomToneDialog(doc_, *history_, slot, direction, prompts_, this);
    connect(dialog, &CustomToneDialog::toneAccepted, gridModel_, &ChannelGridModel::refresh);
    dialog->open();
}

void MainWindow::openFile() {
    const QString path = prompts_.chooseOpenFile(QString::fromUtf8(l10n::fixed::kCodeplugFilter));
    if (path.isEmpty()) return;
    closeGridEditor();
    statusTimer_.stop();
    std::optional<Result<LoadedCodeplug>> result;
    history_->record([&] { result.emplace(openCodeplugFile(doc_, path)); });
    if (!*result) {
        statusRelay_.showMessage(
            warningBox(l10n::describeError(result->error(), doc_.language), doc_.language));
    }
    // Menu and button alike refresh every view from the document: the settings are the truth.
    applyCaptions();
    refreshDocumentViews();
    statusTimer_.start();
}

QString MainWindow::chooseSavePath(const char* filter, const QString& suffix) {
    QString path = prompts_.chooseSaveFile(QString::fromUtf8(filter));
    if (path.isEmpty()) return path;
    if (QFileInfo(path).suffix().isEmpty()) path += suffix;
    closeGridEditor();
    history_->record([this] { RESET_TEXT(doc_); });
    return path;
}

void MainWindow::saveFile() {
    const QString path = chooseSavePath(l10n::fixed::kCodeplugFilter, QStringLiteral(".qzv"));
    if (path.isEmpty()) return;
    if (const Result<void> saved = WriteSaveFile(doc_, path); !saved) {
        statusRelay_.showMessage(
            warningBox(l10n::describeError(saved.error(), doc_.language), doc_.language));
    }
    refreshDocumentViews();
}

void MainWindow::redrawStatus() {
    if (status_) statusPanel_->setText(l10n::message(status_->id, doc_.language) + status_->text);
}
