#include "mainwindow/splash_screen.h"

#include <QLabel>
#include <iterator>
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
    layout->setSpacing(6);
    bool heading = true;  // the program's name opens each language's block of lines
    int line = 0;
    for (const char* text : l10n::fixed::kSplashLines) {
        auto* label = new QLabel(QString::fromUtf8(text), this);
        label->setAlignment(Qt::AlignCenter);
        if (heading) {
            QFont font = label->font();
            font.setPointSizeF(font.pointSizeF() * 1.6);
            font.setBold(true);
            label->setFont(font);
        }
        layout->addWidget(label);
        heading = ++line % 3 == 0;
        if (heading && line < int(std::size(l10n::fixed::kSplashLines))) layout->addSpacing(16);
    }
    setFocusPolicy(Qt::StrongFocus);
    closeTimer_.setSingleShot(true);
    connect(&closeTimer_, &QTimer::timeout, this, &QWidget::close);
    closeTimer_.start(kShownMs);
}

void SplashScreen::mousePressEvent(QMouseEvent*) { close(); }

void SplashScreen::keyPressEvent(QKeyEvent*) { close(); }
