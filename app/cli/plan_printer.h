#pragma once

#include <QTextStream>

#include "model/codeplug.h"

// Prints a plan for people: one line per channel (active or not), then the settings with the
// texts of their options, in the document's language.
void printCodeplug(QTextStream& out, const Codeplug& doc);
