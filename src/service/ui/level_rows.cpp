#include "service/ui/level_rows.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include "service/field_value.h"
#include "service/ui/widget_names.h"

LevelRows::LevelRows(LevelValues& values, QObject* parent)
    : QObject(parent),
      values_(values),
      sliders_(values.text.size(), nullptr),
      boxes_(values.text.size(), nullptr) {}

void LevelRows::addRow(QGridLayout* grid, int row, size_t field) {
    const LevelLayout& layout = levelLayout(values_.table);
    const LevelField& info = layout.fields[field];
    auto* slider = new QScrollBar(Qt::Horizontal);
    slider->setObjectName(QStringLiteral("HScroll%1").arg(info.control));
    slider->setRange(layout.sliderMin, layout.sliderMax);
    slider->setMinimumWidth(220);
    auto* box = new QLineEdit;
    box->setObjectName(QStringLiteral("Text%1").arg(info.control));
    box->setMaximumWidth(56);
    grid->addWidget(new QLabel(service_ui::fixed(info.label)), row, 0);
    grid->addWidget(slider, row, 1);
    grid->addWidget(box, row, 2);
    sliders_[field] = slider;
    boxes_[field] = box;
    connect(slider, &QScrollBar::valueChanged, this, [this, field, box](int value) {
        box->setText(QString::number(value));
        values_.text[field] = box->text();
    });
    connect(box, &QLineEdit::textEdited, this,
            [this, field](const QString& text) { edited(field, text); });
}

void LevelRows::showValues() {
    for (size_t field = 0; field < boxes_.size(); ++field) {
        if (!boxes_[field]) continue;
        const QString text = values_.text[field];
        boxes_[field]->setText(text);
        edited(field, text);
    }
}

void LevelRows::edited(size_t field, const QString& text) {
    values_.text[field] = text;
    const std::optional<double> number = decimalValue(text);
    if (!number) return;
    const QSignalBlocker quiet(sliders_[field]);
    sliders_[field]->setValue(levelSliderPosition(values_.table, roundHalfEven(*number)));
}
