#pragma once

#include <QString>

#include "platform/prompts.h"

// A Yes/No question (the exit question).
struct Question {
    QString text;
    QString title;
};

// What the windows ask of the user beyond the link's status texts and boxes: questions and
// file choices. The program shows real dialogs; widget tests record them and answer from a
// script, so that no test ever waits for a modal dialog.
class WindowPrompts : public Prompts {
public:
    virtual bool askYesNo(const Question& question) = 0;
    // An empty path: the user cancelled.
    virtual QString chooseOpenFile(const QString& filter) = 0;
    virtual QString chooseSaveFile(const QString& filter) = 0;
};
