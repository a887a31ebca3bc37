#pragma once

#include <QObject>
#include <QUndoStack>
#include <functional>

#include "model/codeplug.h"

// Undo and redo for every change of the document: cell edits, toggles, code picks, selectors,
// presets, loads and reads alike. Each step keeps the document as it was before and after,
// which for 25 channel records is cheaper and safer than an inverse for every operation.
class DocumentHistory : public QObject {
    Q_OBJECT

public:
    // `refresh` redraws every view after an undo or redo.
    DocumentHistory(Codeplug& doc, std::function<void()> refresh, QObject* parent = nullptr);

    // Runs `edit`; one undo step when it changed what the document holds.
    void record(const std::function<void()>& edit);
    // For edits that take a while (a read): the state before is taken at begin(), the step is
    // made at end().
    void begin();
    void end();

    QUndoStack& stack() { return stack_; }

private:
    void push(Codeplug before);

    Codeplug& doc_;
    std::function<void()> refresh_;
    QUndoStack stack_;
    Codeplug pending_;
};
