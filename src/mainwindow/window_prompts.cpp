#include "mainwindow/window_prompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

void WidgetPrompts::showMessage(const MessageBox& box) {
    // An empty title stands for the program's own name, as the old boxes showed it.
    const QString title = box.title.isEmpty() ? QApplication::applicationName() : box.title;
    QMessageBox dialog(box.icon == BoxIcon::Warning ? QMessageBox::Warning : QMessageBox::NoIcon,
                       title, box.text, QMessageBox::Ok, parent_);
    dialog.exec();
}

bool WidgetPrompts::askYesNo(const Question& question) {
    QMessageBox dialog(QMessageBox::Warning, question.title, question.text,
                       QMessageBox::Yes | QMessageBox::No, parent_);
    dialog.setDefaultButton(QMessageBox::No);
    return dialog.exec() == QMessageBox::Yes;
}

QString WidgetPrompts::chooseOpenFile(const QString& filter) {
    return QFileDialog::getOpenFileName(parent_, QString(), QString(), filter);
}

QString WidgetPrompts::chooseSaveFile(const QString& filter) {
    return QFileDialog::getSaveFileName(parent_, QString(), QString(), filter);
}
