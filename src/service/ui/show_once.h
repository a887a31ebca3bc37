#pragma once

#include <QPointer>

namespace service_ui {

// A window opened modeless: made on first use, raised on every later one.
template <typename Window, typename... Args>
void showOnce(QPointer<Window>& window, QWidget* parent, Args&... args) {
    if (!window) window = new Window(args..., parent);
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace service_ui
