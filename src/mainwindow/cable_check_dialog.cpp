#include "mainwindow/cable_check_dialog.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "l10n/doctor_texts.h"

CableCheckDialog::CableCheckDialog(const QStringList& report, UiLanguage language, QWidget* parent)
    : QDialog(parent), report_(new QPlainTextEdit(this)), probe_(new QPushButton(this)) {
    setObjectName(QStringLiteral("CableCheck"));
    setWindowTitle(l10n::doctorText(l10n::DoctorText::CableCheckTitle, language));
    report_->setObjectName(QStringLiteral("CableReport"));
    report_->setReadOnly(true);
    report_->setLineWrapMode(QPlainTextEdit::NoWrap);
    report_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    report_->setPlainText(report.join(QLatin1Char('\n')));
    auto* buttons = new QDialogButtonBox(this);
    probe_->setObjectName(QStringLiteral("ProbeRadio"));
    probe_->setText(l10n::doctorText(l10n::DoctorText::ProbeButton, language));
    buttons->addButton(probe_, QDialogButtonBox::ActionRole);
    connect(probe_, &QPushButton::clicked, this, &CableCheckDialog::probeRequested);
    QPushButton* close = buttons->addButton(l10n::doctorText(l10n::DoctorText::Close, language),
                                            QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("CableCheckClose"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(report_);
    layout->addWidget(buttons);
    resize(760, 520);
}

QString CableCheckDialog::reportText() const {
    return report_->toPlainText();
}

void CableCheckDialog::appendLines(const QStringList& lines) {
    report_->appendPlainText(QString());
    for (const QString& line : lines) report_->appendPlainText(line);
}

void CableCheckDialog::setProbeEnabled(bool enabled) {
    probe_->setEnabled(enabled);
}
