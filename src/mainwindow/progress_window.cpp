#include "mainwindow/progress_window.h"

#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "link/session_view.h"

ProgressWindow::ProgressWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      bar_(new QProgressBar(this)), caption_(new QLabel(this)) {
    setObjectName(QStringLiteral("Form5"));
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setRange(0, SessionView::kProgressMaximum);
    bar_->setValue(0);
    bar_->setTextVisible(false);
    auto* picture = new QFrame(this);
    picture->setObjectName(QStringLiteral("Picture1"));
    picture->setFrameShape(QFrame::StyledPanel);
    picture->setMinimumHeight(40);
    caption_->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(picture))->addWidget(caption_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picture);
    layout->addWidget(bar_);
    resize(420, 120);
}

void ProgressWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closedByUser();
}

void ProgressWindow::showOver(const QWidget& owner, const QString& caption) {
    setWindowTitle(caption);
    caption_->setText(caption);
    bar_->setValue(0);
    const QRect area = owner.frameGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
    show();
    raise();
}
