#pragma once

#include <QObject>
#include <vector>

#include "service/volume_tables.h"

class QGridLayout;
class SliderBox;

// The slider and text box of each value of a level table, over the panel's values: the panel
// holds what the boxes hold, and the write sends the boxes as typed.
class LevelRows : public QObject {
    Q_OBJECT

public:
    LevelRows(LevelValues& values, QObject* parent);

    // Field `field`'s label, slider and box as row `row` of `grid`.
    void addRow(QGridLayout* grid, int row, size_t field);
    // Shows the panel's values (after a read, or when the window opens).
    void showValues();

private:
    LevelValues& values_;
    std::vector<SliderBox*> rows_;  // HScrolln and Textn, by field
};
