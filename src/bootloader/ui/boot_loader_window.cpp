#include "bootloader/ui/boot_loader_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "bootloader/boot_frames.h"
#include "l10n/error_texts.h"
#include "l10n/window_texts.h"
#include "persistence/file_access.h"
#include "platform/window_prompts.h"

namespace {

QString fixed(const char* text) {
    return QString::fromUtf8(text);
}

template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

}  // namespace

BootLoaderWindow::BootLoaderWindow(LinkTransport& transport, WindowPrompts& prompts,
                                   UiLanguage language, QWidget* parent)
    : QWidget(parent, Qt::Window),
      prompts_(prompts),
      language_(language),
      session_(transport, language) {
    setObjectName(QStringLiteral("FormBoot"));
    setWindowTitle(fixed(l10n::fixed::kBootWindowTitle));

    eraseButton_ = named(new QPushButton(fixed(l10n::fixed::kBootErase)), "Command5");
    writeButton_ = named(new QPushButton(fixed(l10n::fixed::kBootWrite)), "Command3");
    readButton_ = named(new QPushButton(fixed(l10n::fixed::kBootRead)), "Command4");
    cancelButton_ = named(new QPushButton(l10n::bootText(l10n::BootText::CancelButton, language)),
                          "CancelButton");
    startEdit_ = named(new QLineEdit(QStringLiteral("1000")), "Text1");
    endEdit_ = named(new QLineEdit(QStringLiteral("7FFF")), "Text2");
    imageBox_ = named(new QComboBox, "Combo1");
    imageButton_ = named(new QPushButton(fixed(l10n::fixed::kBootOpen)), "Command1");
    outputBox_ = named(new QComboBox, "Combo2");
    outputButton_ = named(new QPushButton(fixed(l10n::fixed::kBootOpen)), "Command2");
    verifyBox_ =
        named(new QCheckBox(l10n::bootText(l10n::BootText::VerifyOption, language)), "VerifyBox");
    log_ = named(new QPlainTextEdit, "Text5");
    progress_ = named(new QProgressBar, "ProgressBar1");

    for (QComboBox* box : {imageBox_, outputBox_}) {
        box->setEditable(true);
        box->setMinimumContentsLength(40);
    }
    for (QLineEdit* edit : {startEdit_, endEdit_}) {
        edit->setMaxLength(5);
        edit->setMaximumWidth(80);
    }
    verifyBox_->setChecked(true);
    log_->setReadOnly(true);
    log_->setMinimumHeight(180);
    progress_->setRange(0, 100);
    progress_->setValue(0);
    cancelButton_->setEnabled(false);

    auto* operations = new QGroupBox(fixed(l10n::fixed::kBootOperations));
    auto* operationRow = new QGridLayout(operations);
    operationRow->addWidget(eraseButton_, 0, 0);
    operationRow->addWidget(writeButton_, 0, 1);
    operationRow->addWidget(readButton_, 0, 2);
    operationRow->addWidget(cancelButton_, 0, 3);
    operationRow->addWidget(new QLabel(fixed(l10n::fixed::kBootStartLabel)), 1, 0);
    operationRow->addWidget(startEdit_, 1, 1);
    operationRow->addWidget(new QLabel(fixed(l10n::fixed::kBootEndLabel)), 1, 2);
    operationRow->addWidget(endEdit_, 1, 3);
    operationRow->addWidget(verifyBox_, 2, 0, 1, 4);

    auto* files = new QGridLayout;
    files->addWidget(new QLabel(fixed(l10n::fixed::kBootImageLabel)), 0, 0, 1, 2);
    files->addWidget(imageBox_, 1, 0);
    files->addWidget(imageButton_, 1, 1);
    files->addWidget(new QLabel(fixed(l10n::fixed::kBootOutputLabel)), 2, 0, 1, 2);
    files->addWidget(outputBox_, 3, 0);
    files->addWidget(outputButton_, 3, 1);
    files->setColumnStretch(0, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(operations);
    layout->addLayout(files);
    layout->addWidget(log_, 1);
    layout->addWidget(progress_);

    connect(imageButton_, &QPushButton::clicked, this, &BootLoaderWindow::chooseImage);
    connect(outputButton_, &QPushButton::clicked, this, &BootLoaderWindow::chooseOutput);
    connect(eraseButton_, &QPushButton::clicked, this,
            [this] { run(BootSession::Operation::Erase); });
    connect(writeButton_, &QPushButton::clicked, this,
            [this] { run(BootSession::Operation::Write); });
    connect(readButton_, &QPushButton::clicked, this,
            [this] { run(BootSession::Operation::Read); });
    connect(cancelButton_, &QPushButton::clicked, &session_, &BootSession::cancel);
    connect(&session_, &BootSession::logLine, this, &BootLoaderWindow::appendLog);
    connect(&session_, &BootSession::progressChanged, progress_, &QProgressBar::setValue);
    // Queued: finishing may ask for a file, and a dialog's event loop does not belong inside
    // the link's handling of the reply that ended the job.
    connect(&session_, &BootSession::finished, this, &BootLoaderWindow::finished,
            Qt::QueuedConnection);
}

BootLoaderWindow::~BootLoaderWindow() {
    session_.cancel();
}

void BootLoaderWindow::chooseImage() {
    const QString path = prompts_.chooseOpenFile(fixed(l10n::fixed::kBinaryFilter));
    if (path.isEmpty()) return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return;
    imageBox_->setCurrentText(path);
}

void BootLoaderWindow::chooseOutput() {
    // The file is only written when a read has succeeded; an old one is kept until then.
    const QString path = prompts_.chooseSaveFile(fixed(l10n::fixed::kBinaryFilter));
    if (!path.isEmpty()) outputBox_->setCurrentText(path);
}

void BootLoaderWindow::run(BootSession::Operation operation) {
    if (busy_) return;
    BootSession::Job job;
    job.operation = operation;
    job.start = boot::parseAddress(startEdit_->text());
    job.end = boot::parseAddress(endEdit_->text());
    job.verify = verifyBox_->isChecked();
    if (operation == BootSession::Operation::Write) {
        job.imagePath = imageBox_->currentText();
        if (!job.imagePath.isEmpty()) {
            const Result<QByteArray> image = readWholeFile(job.imagePath);
            if (!image) {
                appendLog(l10n::describeError(image.error(), language_));
                return;
            }
            job.image = image.value();
        }
    }
    running_ = operation;
    progress_->setValue(0);
    setBusy(true);
    if (!session_.start(job)) setBusy(false);
}

void BootLoaderWindow::finished(BootSession::Outcome outcome) {
    setBusy(false);
    if (outcome != BootSession::Outcome::Succeeded || running_ != BootSession::Operation::Read) {
        return;
    }
    if (outputBox_->currentText().isEmpty()) chooseOutput();
    const QString path = outputBox_->currentText();
    if (path.isEmpty()) return;
    if (const Result<void> saved = saveWholeFile(path, session_.data()); !saved) {
        appendLog(l10n::describeError(saved.error(), language_));
    }
}

void BootLoaderWindow::appendLog(const QString& line) {
    log_->appendPlainText(line);
    log_->ensureCursorVisible();
}

void BootLoaderWindow::setBusy(bool busy) {
    busy_ = busy;
    for (QWidget* control :
         std::initializer_list<QWidget*>{eraseButton_, writeButton_, readButton_, imageButton_,
                                         outputButton_, startEdit_, endEdit_, verifyBox_}) {
        control->setEnabled(!busy);
    }
    cancelButton_->setEnabled(busy);
}
