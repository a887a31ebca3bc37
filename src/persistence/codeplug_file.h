#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "model/codeplug.h"
#include "persistence/file_access.h"
#include "persistence/private_profile.h"

// Codeplug files (.qzv): the current INI layout, read and written, and four older line-per-value
// layouts, read only. Which reader a file gets is decided by its number of lines alone.

enum class CodeplugLayout { Current, V05, V13, V16, V18 };

// "V18 (215 lines)" and the like, for people.
QString layoutName(CodeplugLayout layout);

// What a load found. On an error nothing was read and the document is as it was.
struct LoadedCodeplug {
    CodeplugLayout layout = CodeplugLayout::Current;
    // The language the old layouts record as having been active when they were saved. The
    // document keeps its own language; words of both languages are understood anyway.
    std::optional<UiLanguage> savedLanguage;
};

// Reads a file of any layout into `doc`. Afterwards the document's settings are the truth: the
// views refresh every selector from them.
Result<LoadedCodeplug> openCodeplugFile(Codeplug& doc, const QString& path);
// The same, for a file's content already in memory; `path` only names it in an error.
Result<LoadedCodeplug> loadCodeplugData(Codeplug& doc, const QByteArray& bytes,
                                        const QString& path);

// Number of lines of a file's content (CR LF, LF or CR end a line).
int CalFileLineCnt(const QByteArray& bytes);

enum class SaveMode {
    KeepOtherLines,  // Save As: foreign sections and notes of an existing file stay
    ReplaceFile,     // a fresh file holding only the codeplug
};

// Writes every key of the current layout in one read-modify-write of the file.
Result<void> WriteSaveFile(const Codeplug& doc, const QString& path,
                           SaveMode mode = SaveMode::KeepOtherLines);

// The current layout's keys and values, into `profile`, in their writing order.
void writeCodeplugKeys(const Codeplug& doc, PrivateProfile& profile);
// The bytes of a file that holds only `doc`, as WriteSaveFile(ReplaceFile) writes them.
QByteArray codeplugFileBytes(const Codeplug& doc);

// Whether a file in the current layout holds at least one of its sections.
bool holdsCodeplugSection(const PrivateProfile& profile);
// The current-layout reader; missing keys take their defaults.
void ReadSaveFile(Codeplug& doc, const PrivateProfile& profile);

// A channel count read from a file is held to 1..25: "30" becomes "25", "-5" and "abc" become
// "1"; a count inside the range stays as written.
QString channelCountFromFile(const QString& text);
