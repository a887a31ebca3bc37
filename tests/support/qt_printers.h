#pragma once

#include <QString>
#include <ostream>

// Readable QStrings in test failures. Every test source sees this declaration (the build
// includes it first), so that all of them print a QString the same way.
void PrintTo(const QString& text, std::ostream* os);
