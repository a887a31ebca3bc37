#pragma once

// What the file readers promise for any bytes at all, beyond not crashing. The fuzz targets check
// it for every input they make; the regression test checks it for the inputs fuzzing once found.

#include <QByteArray>
#include <QStringList>

#include "model/codeplug.h"
#include "persistence/codeplug_file.h"
#include "persistence/config_file.h"
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
