#pragma once

// What the file readers promise for any bytes at all, beyond not crashing. The fuzz targets check
// it for every input they make; the regression test checks it for the inputs fuzzing once found.

#include <QByteArray>
#include <QStringList>

#include "model/codeplug.h"
#include "model/frequency.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"
#include "persistence/legacy_layouts.h"
#include "persistence/text_encoding.h"

namespace reader_properties {

// The codeplug readers behave differently for fixed channel tables and for each language.
inline const Codeplug& startDocument(int variant) {
    static const Codeplug documents[] = {
        buildStartupCodeplug(StartupConfig{}),
        [] {
            StartupConfig config;
            config.language = UiLanguage::English;
            config.channelsFixed = true;
            return buildStartupCodeplug(config);
        }(),
    };
    return documents[variant % 2];
}

// Everything a codeplug file holds, compared without saving it.
inline bool sameDocument(const Codeplug& a, const Codeplug& b) {
    return a.plan == b.plan && a.settings == b.settings && a.chtot == b.chtot &&
           a.freqstep == b.freqstep;
}

// A channel count taken from a file is held to 1..25.
inline const char* checkChannelCount(const Codeplug& doc) {
    const double count = numericValue(doc.chtot);
    return count >= 1 && count <= kSlotCount ? nullptr : "a channel count is held to 1..25";
}

// Parsing alone: a refused file leaves the document as it was, a read one has a count in range.
inline const char* checkCodeplugParse(const QByteArray& bytes, int variant) {
    const Codeplug& start = startDocument(variant);
    Codeplug doc = start;
    if (loadCodeplugData(doc, bytes, QStringLiteral("input")).ok()) return checkChannelCount(doc);
    return sameDocument(doc, start) ? nullptr : "a refused file leaves the document as it was";
}

// The old readers on lines cut or padded to their layout's count; `selector` chooses the
// layout and the document.
inline const char* checkLegacyLayouts(const QByteArray& bytes, int selector) {
    static const int kCounts[] = {132, 213, 214, 215};
    const int count = kCounts[selector % 4];
    QStringList lines = splitLines(decodeFileText(bytes)).mid(0, count);
    while (lines.size() < count) lines << QString();
    Codeplug doc = startDocument(selector / 4);
    switch (count) {
        case 132:
            ReadSaveFile_V05(doc, lines);
            break;
        case 213:
            ReadSaveFile_V13(doc, lines);
            break;
        case 214:
            ReadSaveFile_V16(doc, lines);
            break;
        default:
            ReadSaveFile_V18(doc, lines);
            break;
    }
    return checkChannelCount(doc);
}

// Reading and completing config.ini: the start channel count is held to 1..25.
inline const char* checkConfigParse(const QByteArray& bytes) {
    PrivateProfile profile = PrivateProfile::fromText(decodeFileText(bytes));
    const StartupConfig config = readConfigProfile(profile);
    const double count = numericValue(config.maxch);
    return count >= 1 && count <= kSlotCount ? nullptr : "maxch is held to 1..25";
}

// A refused file leaves the document as it was; once a plan has been through the current layout,
// saving and loading it again changes nothing. (The first save may still tidy what an old layout
// or a hand-edited file held: blanks around values, overlong values.)
// Returns the promise that was broken, or nullptr.
inline const char* checkCodeplugReader(const QByteArray& bytes, int variant) {
    const Codeplug& start = startDocument(variant);
    Codeplug doc = start;
    if (!loadCodeplugData(doc, bytes, QStringLiteral("input")).ok()) {
        return codeplugFileBytes(doc) == codeplugFileBytes(start)
                   ? nullptr
                   : "a refused file leaves the document as it was";
    }
    Codeplug again = start;
    if (!loadCodeplugData(again, codeplugFileBytes(doc), QStringLiteral("saved")).ok()) {
        return "a saved file loads";
    }
    const QByteArray resaved = codeplugFileBytes(again);
    Codeplug third = start;
    if (!loadCodeplugData(third, resaved, QStringLiteral("resaved")).ok()) {
        return "a saved file loads";
    }
    return codeplugFileBytes(third) == resaved ? nullptr
                                               : "saving and loading again change nothing";
}

inline bool sameConfig(const StartupConfig& a, const StartupConfig& b) {
    return a.language == b.language && a.channelsFixed == b.channelsFixed && a.maxch == b.maxch &&
           a.defband == b.defband && a.presets.frequency == b.presets.frequency &&
           a.presets.code == b.presets.code && a.presets.power == b.presets.power &&
           a.presets.bandwidth == b.presets.bandwidth;
}

// The file the reader completes needs no completing again, and reads the same from its bytes.
inline const char* checkConfigReader(const QByteArray& bytes) {
    PrivateProfile profile = PrivateProfile::fromText(decodeFileText(bytes));
    const StartupConfig first = readConfigProfile(profile);
    const QString completed = profile.text();

    PrivateProfile reread = PrivateProfile::fromText(decodeFileText(encodeFileText(completed)));
    const StartupConfig second = readConfigProfile(reread);
    if (reread.changed()) return "a completed file needs no completing";
    if (!sameConfig(first, second)) return "a completed file reads the same again";
    buildStartupCodeplug(first);
    return nullptr;
}

}  // namespace reader_properties
