#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include "l10n/safe_write_texts.h"
#include "link/read_session.h"
#include "link/write_session.h"
#include "mainwindow/channel_grid_view.h"
#include "mainwindow/document_history.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_picker_dialog.h"
#include "mainwindow/progress_window.h"
#include "mainwindow/splash_screen.h"
#include "persistence/backup_folder.h"
#include "persistence/config_file.h"

namespace {
constexpr int kBackupNoteMs = 10000;
}  // namespace

void MainWindow::StatusRelay::showStatus(const StatusText& status) {
    const QString message = l10n::message(status.id, window_.doc_.language);
    const QString suffix =
        status.text.startsWith(message) ? status.text.mid(message.size()) : QString();
    window_.status_ = StatusText{status.id, suffix};
    window_.statusPanel_->setText(status.text);
    window_.prompts_.showStatus(status);
}

void MainWindow::StatusRelay::showMessage(const MessageBox& box) {
    window_.prompts_.showMessage(box);
}

void MainWindow::WidgetSessionView::setSessionButtonsEnabled(bool enabled) {
    for (QPushButton* button : {window_.writeButton_, window_.readButton_}) {
        button->setEnabled(enabled);
    }
    window_.readAction_->setEnabled(enabled);
    window_.writeAction_->setEnabled(enabled);
    // The port stays as it is while a session uses it.
    window_.portList_->setEnabled(enabled);
    window_.scanButton_->setEnabled(enabled);
    window_.portMenu_->setEnabled(enabled);
    // A step back, a file or an import while a read fills the grid would be overwritten at once.
    window_.undoAction_->setEnabled(enabled);
    window_.redoAction_->setEnabled(enabled);
    window_.importCsvAction_->setEnabled(enabled);
    window_.openAction_->setEnabled(enabled);
    window_.openButton_->setEnabled(enabled);
}

void MainWindow::WidgetSessionView::showProgress(const QString& caption) {
    window_.progress_->showOver(window_, caption);
}

void MainWindow::WidgetSessionView::setProgress(int value) {
    window_.progress_->bar().setValue(value);
    // Each step is a record taken in or sent: the grid shows the read as it comes.
    window_.refreshDocumentViews();
}

void MainWindow::WidgetSessionView::hideProgress() {
    window_.progress_->bar().setValue(0);
    window_.progress_->hide();
}

void MainWindow::WidgetSessionView::pauseStatusTimers() {
    window_.statusTimer_.stop();
}

void MainWindow::WidgetSessionView::resumeStatusTimers() {
    window_.statusTimer_.start();
}

bool MainWindow::sessionRunning() const {
    return session_ && session_->isRunning();
}

// The bar's range is the session's own: a read ends at 75 and a write at 156, and either should
// end with the bar full.
void MainWindow::startRead() {
    progress_->bar().setRange(0, kSlotCount * ReadSession::kProgressPerChannel);
    startSession(std::make_unique<ReadSession>(transport_, doc_, statusRelay_, sessionView_));
}

void MainWindow::startWrite() {
    SafeWriteOptions safety;
    safety.backup = backupAction_->isChecked();
    safety.verify = verifyAction_->isChecked();
    safety.backupFolder = backupFolder();
    safety.portName = portControl_.comboText();
    progress_->bar().setRange(0, WriteSession::progressGoal(safety));
    auto session =
        std::make_unique<WriteSession>(transport_, doc_, statusRelay_, sessionView_, safety);
    connect(session.get(), &WriteSession::backupSaved, this,
            [this](const QString& path, const QList<int>& unread) {
                QString note =
                    l10n::safeWriteText(l10n::SafeWriteText::BackupSaved, doc_.language).arg(path);
                // Channels the radio's records could not be read as stay empty in the backup.
                if (!unread.isEmpty()) {
                    note += QLatin1Char(' ') + l10n::backupChannelsUnread(unread, doc_.language);
                }
                statusBar()->showMessage(note, kBackupNoteMs);
            });
    startSession(std::move(session));
}

void MainWindow::rememberSafeWrite() {
    // A config.ini that cannot be written keeps the choice for this run only.
    writeSafeWritePreferences(configPath_,
                              {backupAction_->isChecked(), verifyAction_->isChecked()});
}

void MainWindow::startSession(std::unique_ptr<RadioSession> session) {
    if (session_) return;
    finishedSession_.reset();
    closeGridEditor();
    RadioSession* started = session.get();
    connect(started, &RadioSession::finished, this, &MainWindow::sessionFinished);
    session_ = std::move(session);
    history_->begin();
    // A monitor left running would take the session's replies.
    serviceChannel_.setMonitor(nullptr);
    if (!started->start() && session_.get() == started) {
        // Refused before anything happened; the user has been told why.
        session_.reset();
    }
}

void MainWindow::sessionFinished() {
    // The session is still on the stack that reported its end; it goes at the next start, or
    // with the window, before the transport it knows.
    finishedSession_ = std::move(session_);
    history_->end();  // a whole read is one step
    refreshDocumentViews();
}

void MainWindow::progressClosedByUser() {
    if (session_ && session_->isRunning()) session_->cancel();
}

void MainWindow::closeGridEditor() {
    grid_->finishEditing();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (splash_) splash_->close();
    statusTimer_.stop();
    exitAction_->setChecked(true);  // the closing flag
    const bool yes =
        prompts_.askYesNo({l10n::message(l10n::MessageId::MsgConfirmExit, doc_.language),
                           l10n::message(l10n::MessageId::MsgConfirmExitTitle, doc_.language)});
    if (!yes) {
        event->ignore();
        exitAction_->setChecked(false);
        statusTimer_.start();
        return;
    }
    // Yes during a read or write: the session ends cleanly before the port goes.
    if (session_ && session_->isRunning()) session_->cancel();
    if (port_.isOpen()) {
        port_.discardOutput();
        port_.close();
    }
    if (portPicker_) portPicker_->close();
    progress_->hide();
    event->accept();
}

void MainWindow::stepHistory(bool back) {
    if (sessionRunning()) return;
    closeGridEditor();
    if (back) {
        history_->stack().undo();
    } else {
        history_->stack().redo();
    }
}
