#include "service/ui/level_rows.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "service/ui/slider_box.h"
#include "service/ui/widget_names.h"

LevelRows::LevelRows(LevelValues& values, QObject* parent)
    : QObject(parent), values_(values), rows_(values.text.size(), nullptr) {}

void LevelRows::addRow(QGridLayout* grid, int row, size_t field) {
    const LevelField& info = levelLayout(values_.table).fields[field];
    auto* slider = new QScrollBar(Qt::Horizontal);
    slider->setObjectName(QStringLiteral("HScroll%1").arg(info.control));
    slider->setMinimumWidth(220);
    auto* box = new QLineEdit;
    box->setObjectName(QStringLiteral("Text%1").arg(info.control));
    box->setMaximumWidth(56);
    grid->addWidget(new QLabel(service_ui::fixed(info.label)), row, 0);
    grid->addWidget(slider, row, 1);
    grid->addWidget(box, row, 2);
    rows_[field] = new SliderBox(slider, box, levelSliderScale(values_.table), this);
    // Typed or set by the slider, the box's text is the panel's value.
    connect(box, &QLineEdit::textChanged, this,
            [this, field](const QString& text) { values_.text[field] = text; });
}

void LevelRows::showValues() {
    for (size_t field = 0; field < rows_.size(); ++field) {
        if (rows_[field]) rows_[field]->show(values_.text[field]);
    }
}
