#include "mainwindow/splash_screen.h"

#include <QLabel>
#include <QVBoxLayout>

#include "l10n/window_texts.h"

SplashScreen::SplashScreen(QWidget* parent)
    : QFrame(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::Box);
    setLineWidth(2);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    for (const char* line : l10n::fixed::kSplashLines) {
        auto* label = new QLabel(QString::fromUtf8(line), this);
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    setFocusPolicy(Qt::StrongFocus);
    closeTimer_.setSingleShot(true);
    connect(&closeTimer_, &QTimer::timeout, this, &QWidget::close);
    closeTimer_.start(kShownMs);
}

void SplashScreen::mousePressEvent(QMouseEvent*) { close(); }

void SplashScreen::keyPressEvent(QKeyEvent*) { close(); }
