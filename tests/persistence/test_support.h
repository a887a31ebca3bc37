#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QString>

#include "model/codeplug.h"
#include "persistence/codeplug_file.h"

// Sample files live beside the tests; the build tells the folder.
inline QString samplePath(const char* name) {
    return QStringLiteral(PERSISTENCE_SAMPLES_DIR "/") + QLatin1String(name);
}

inline QByteArray readSample(const char* name) {
    QFile file(samplePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

// A file's bytes, empty when it cannot be read; and a file written with `bytes`.
inline QByteArray fileContent(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
inline void writeFileContent(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline Codeplug startupDoc(UiLanguage language = UiLanguage::Chinese, bool fixed = false) {
    StartupConfig config;
    config.language = language;
    config.channelsFixed = fixed;
    return buildStartupCodeplug(config);
}

// Everything a codeplug file keeps, slot by slot, so that a failure names the slot.
inline void expectSameCodeplug(const Codeplug& expected, const Codeplug& actual) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        EXPECT_TRUE(expected.plan[slot] == actual.plan[slot])
            << "slot " << slot << ": " << expected.plan[slot].rxfreq.toStdString() << " "
            << expected.plan[slot].rxctc.toStdString() << " vs "
            << actual.plan[slot].rxfreq.toStdString() << " "
            << actual.plan[slot].rxctc.toStdString();
    }
    EXPECT_TRUE(expected.settings == actual.settings);
    EXPECT_EQ(expected.chtot, actual.chtot);
    EXPECT_EQ(expected.freqstep, actual.freqstep);
}
