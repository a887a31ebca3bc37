#pragma once

// Readable QStrings in test failures. The build includes this first in every test source file:
// gtest picks a printer per translation unit, so a PrintTo that some files of a binary see and
// others do not gives two different definitions of the same printer.

#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}
