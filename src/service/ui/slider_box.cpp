#include "service/ui/slider_box.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>

SliderBox::SliderBox(QScrollBar* slider, QLineEdit* box, SliderScale scale, QObject* parent)
    : QObject(parent), slider_(slider), box_(box), scale_(scale) {
    slider_->setRange(scale_.min, scale_.max);
    box_->setText(scale_.text(slider_->value()));
    connect(slider_, &QScrollBar::valueChanged, this,
            [this](int position) { box_->setText(scale_.text(position)); });
    connect(box_, &QLineEdit::textEdited, this, &SliderBox::boxEdited);
}

void SliderBox::show(const QString& text) {
    box_->setText(text);
    boxEdited(text);
}

QString SliderBox::text() const {
    return box_->text();
}

void SliderBox::boxEdited(const QString& text) {
    const std::optional<int> position = scale_.position(text);
    if (!position) return;
    const QSignalBlocker quiet(slider_);
    slider_->setValue(*position);
}
