// Inputs that once broke a reader, and hand-made ones of the same kind: every file of the
// folder goes through both readers and must keep their promises.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "reader_properties.h"

namespace {

TEST(FuzzRegressions, EveryInputKeepsTheReadersPromises) {
    const QDir folder(QStringLiteral(PERSISTENCE_FUZZ_REGRESSIONS_DIR));
    const QStringList names = folder.entryList(QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        const QByteArray bytes = file.readAll();
        for (int variant : {0, 1}) {
            const char* broken = reader_properties::checkCodeplugReader(bytes, variant);
            EXPECT_EQ(broken, nullptr) << name.toStdString() << ": " << broken;
        }
        const char* broken = reader_properties::checkConfigReader(bytes);
        EXPECT_EQ(broken, nullptr) << name.toStdString() << ": " << broken;
    }
}

}  // namespace
