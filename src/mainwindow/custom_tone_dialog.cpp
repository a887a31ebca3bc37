#include "mainwindow/custom_tone_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "l10n/window_texts.h"
#include "mainwindow/document_history.h"
#include "mainwindow/window_prompts.h"

CustomToneDialog::CustomToneDialog(Codeplug& doc, DocumentHistory& history, int slot,
                                   CodeDirection direction, WindowPrompts& prompts, QWidget* parent)
    : QDialog(parent), doc_(doc), history_(history), slot_(slot), direction_(direction), prompts_(prompts),
      field_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("CustomToneDialog"));
    setWindowTitle(QString::fromUtf8(l10n::fixed::kCustomToneTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    field_->setObjectName(QStringLiteral("Text1"));
    const ChannelRecord& ch = doc.plan[slot];
    field_->setText(direction == CodeDirection::Rx ? ch.rxctcfreq : ch.txctcfreq);
    field_->installEventFilter(this);
    auto* ok = new QPushButton(QString::fromUtf8(l10n::fixed::kCustomToneOk), this);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, &CustomToneDialog::confirm);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(field_);
    layout->addWidget(ok);
}

bool CustomToneDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::KeyPress) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    int code = key->text().isEmpty() ? 0 : key->text().at(0).unicode();
    if (key->key() == Qt::Key_Backspace) code = kKeyBackspace;
    if (key->key() == Qt::Key_Delete) code = kKeyDelete;
    if (key->key() == Qt::Key_Enter || key->key() == Qt::Key_Return) code = kKeyEnter;
    // Cursor movement and other keys that type nothing are left to the field.
    if (code == 0) return false;
    switch (customToneKey(field_->text(), code)) {
        case KeyAction::Accept:
            return false;
        case KeyAction::Discard:
            return true;
        case KeyAction::FocusNext:
            focusNextChild();
            return true;
    }
    return false;
}

void CustomToneDialog::confirm() {
    CustomToneResult result;
    history_.record([&] { result = confirmCustomTone(doc_, slot_, direction_, field_->text()); });
    field_->setText(result.fieldText);
    for (const Notice& notice : result.notices) {
        prompts_.showMessage(warningBox(noticeText(notice, doc_.language), doc_.language));
    }
    if (!result.accepted) return;
    Q_EMIT toneAccepted();
    close();
}
