#pragma once

#include <QByteArray>

// The read and end requests of a programming session (the write requests carry records and
// come from the memory image).

// "S": 53 03 00 00 04 5A.
QByteArray readSettingsRequest();
// "R" for slot 0..24: 52 03 slot 00 05 checksum.
QByteArray readChannelRequest(int slot);
// "E": 45 00 45.
QByteArray endWriteRequest();
