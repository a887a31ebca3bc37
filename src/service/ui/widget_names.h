#pragma once

#include <QString>

namespace service_ui {

inline QString fixed(const char* text) {
    return QString::fromUtf8(text);
}

// Controls are found by the names the technicians' tool gave them.
template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

}  // namespace service_ui
