#pragma once

#include <QObject>
#include <QString>

#include "service/field_value.h"

class QLineEdit;
class QScrollBar;

// A slider and the text box beside it. Moving the slider writes its value into the box; typing
// a number into the box moves the slider (clamped to its range) and leaves the box as typed,
// because the radio is sent what the box holds.
class SliderBox : public QObject {
public:
    SliderBox(QScrollBar* slider, QLineEdit* box, SliderScale scale, QObject* parent);

    // Shows a value as received: the box holds it as is, the slider stands clamped.
    void show(const QString& text);
    QString text() const;

private:
    void boxEdited(const QString& text);

    QScrollBar* slider_;
    QLineEdit* box_;
    SliderScale scale_;
};
