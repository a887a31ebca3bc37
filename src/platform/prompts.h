#pragma once

#include <QString>

#include "l10n/texts.h"

// A text for the first panel of the main window's status bar: a message-table entry, rendered
// in the language of the moment, sometimes followed by a port number ("COM5").
struct StatusText {
    l10n::MessageId id;
    QString text;
};

enum class BoxIcon { None, Warning };

// An OK-only message box. An empty title stands for the application's own default title.
struct MessageBox {
    QString text;
    QString title;
    BoxIcon icon = BoxIcon::None;
};

// Everything the link tells the user goes through here, in the order the user sees it.
// The desktop program shows it in the status bar and in message boxes, the command line
// prints a line for each, tests record them.
class Prompts {
public:
    virtual ~Prompts() = default;

    virtual void showStatus(const StatusText& status) = 0;
    // Returns when the user has dismissed the box (at once, where nobody has to).
    virtual void showMessage(const MessageBox& box) = 0;
};

// Set_StBar: the status panel shows message `id` of `language`, followed by `suffix`.
void Set_StBar(Prompts& prompts, l10n::MessageId id, UiLanguage language,
               const QString& suffix = {});

// The warning box every link failure uses: the text under "警告" / "NOTE".
MessageBox warningBox(const QString& text, UiLanguage language);
