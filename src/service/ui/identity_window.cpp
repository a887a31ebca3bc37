#include "service/ui/identity_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "l10n/production_texts.h"
#include "l10n/texts.h"
#include "service/ui/widget_names.h"

using service_ui::fixed;
using service_ui::named;

namespace {

enum IdCaption {
    Frame = 1,
    IdLabel = 2,
    SuccessLabel = 3,
    DecimalLabel = 4,
    WriteId = 5,
    ReadId = 6
};

}  // namespace

IdentityWindow::IdentityWindow(ServiceChannel& channel, QWidget* parent)
    : QWidget(parent, Qt::Window), channel_(channel), panel_(channel) {
    setObjectName(QStringLiteral("Form6"));
    setWindowTitle(fixed(l10n::fixed::kIdentityWindowTitle));

    idEdit_ = named(new QLineEdit(panel_.identity), "Text1");
    // Digits only: the number is decimal.
    idEdit_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), idEdit_));
    idEdit_->setMinimumWidth(140);
    countEdit_ = named(new QLineEdit, "Text2");
    countEdit_->setReadOnly(true);
    countEdit_->setMaximumWidth(80);
    idLabel_ = named(new QLabel, "Label1");
    decimalLabel_ = named(new QLabel, "Label3");
    successLabel_ = named(new QLabel, "Label2");
    writeButton_ = named(new QPushButton, "Command1");
    readButton_ = named(new QPushButton, "Command2");
    // Enter presses the button that has the focus, as Space does.
    writeButton_->setAutoDefault(true);
    readButton_->setAutoDefault(true);

    frame_ = new QGroupBox;
    auto* grid = new QGridLayout(frame_);
    grid->addWidget(idLabel_, 0, 0);
    grid->addWidget(idEdit_, 0, 1);
    grid->addWidget(decimalLabel_, 0, 2);
    grid->addWidget(successLabel_, 1, 0);
    grid->addWidget(countEdit_, 1, 1, Qt::AlignLeft);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(writeButton_);
    buttons->addWidget(readButton_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame_);
    layout->addLayout(buttons);

    retranslate();
    showValues();

    // Enter moves on to the next control, as a Tab would.
    connect(idEdit_, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    connect(idEdit_, &QLineEdit::textEdited, this,
            [this](const QString& text) { panel_.identity = text; });
    connect(writeButton_, &QPushButton::clicked, this, [this] {
        if (!panel_.write()) writeButton_->setFocus();
    });
    connect(readButton_, &QPushButton::clicked, &panel_, &IdentityPanel::read);
    connect(&panel_, &IdentityPanel::markChanged, this, &IdentityWindow::showMark);
    connect(&channel_, &ServiceChannel::languageChanged, this, &IdentityWindow::retranslate);
    connect(&panel_, &ServicePanel::runningChanged, this, [this](bool running) {
        writeButton_->setEnabled(!running);
        readButton_->setEnabled(!running);
    });
    connect(&panel_, &ServicePanel::finished, this, [this] {
        showValues();
        // The next radio is numbered with one key press.
        writeButton_->setFocus();
    });
}

IdentityWindow::~IdentityWindow() {
    panel_.cancel();
}

void IdentityWindow::retranslate() {
    const UiLanguage language = channel_.language();
    frame_->setTitle(l10n::idCaption(Frame, language));
    idLabel_->setText(l10n::idCaption(IdLabel, language));
    successLabel_->setText(l10n::idCaption(SuccessLabel, language));
    decimalLabel_->setText(l10n::idCaption(DecimalLabel, language));
    writeButton_->setText(l10n::idCaption(WriteId, language));
    readButton_->setText(l10n::idCaption(ReadId, language));
}

void IdentityWindow::showValues() {
    if (idEdit_->text() != panel_.identity) idEdit_->setText(panel_.identity);
    countEdit_->setText(QString::number(panel_.successes));
}

void IdentityWindow::showMark(IdentityPanel::Mark mark) {
    QPalette palette = idEdit_->palette();
    QColor colour = this->palette().color(QPalette::Text);
    switch (mark) {
        case IdentityPanel::Mark::Plain:
            break;
        case IdentityPanel::Mark::Preparing:
            // The system's colour of an inactive window border.
            colour = this->palette().color(QPalette::Inactive, QPalette::Mid);
            break;
        case IdentityPanel::Mark::Refused:
            colour = QColor(255, 0, 0);
            break;
        case IdentityPanel::Mark::Accepted:
            colour = QColor(0, 255, 0);
            break;
    }
    palette.setColor(QPalette::Text, colour);
    idEdit_->setPalette(palette);
}
