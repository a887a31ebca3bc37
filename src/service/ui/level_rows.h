#pragma once

#include <QObject>
#include <vector>

#include "service/volume_tables.h"

class QGridLayout;
class QLineEdit;
class QScrollBar;

// The slider and text box of each value of a level table, over the panel's values: the box
// shows its slider's value, a number typed into the box moves the slider (clamped to its
// range), and the write sends the boxes as typed.
class LevelRows : public QObject {
    Q_OBJECT

public:
    LevelRows(LevelValues& values, QObject* parent);

    // Field `field`'s label, slider and box as row `row` of `grid`.
    void addRow(QGridLayout* grid, int row, size_t field);
    // Shows the panel's values (after a read, or when the window opens).
    void showValues();

private:
    void edited(size_t field, const QString& text);

    LevelValues& values_;
    std::vector<QScrollBar*> sliders_;  // HScrolln, by field
    std::vector<QLineEdit*> boxes_;     // Textn, by field
};
