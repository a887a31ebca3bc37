// Inputs that once broke a reader, and hand-made ones of the same kind: every file of the
// folder goes through both readers and must keep their promises.
#include <gtest/gtest.h>

#include <vector>

#include "csv_properties.h"
#include "reader_properties.h"
#include "regression_inputs.h"

namespace {

TEST(FuzzRegressions, EveryInputKeepsTheReadersPromises) {
    const auto inputs = regressionInputs(QStringLiteral(PERSISTENCE_FUZZ_REGRESSIONS_DIR));
    ASSERT_FALSE(inputs.isEmpty());
    for (auto it = inputs.cbegin(); it != inputs.cend(); ++it) {
        const QString& name = it.key();
        const QByteArray& bytes = it.value();
        using namespace reader_properties;
        std::vector<const char*> broken = {checkConfigReader(bytes), checkConfigParse(bytes)};
        for (int variant : {0, 1}) {
            broken.push_back(checkCodeplugReader(bytes, variant));
            broken.push_back(checkCodeplugParse(bytes, variant));
        }
        for (int selector = 0; selector < 8; ++selector) {
            broken.push_back(checkLegacyLayouts(bytes, selector));
        }
        for (const char* promise : broken) {
            EXPECT_EQ(promise, nullptr) << name.toStdString() << ": " << promise;
        }
    }
}

TEST(FuzzRegressions, EveryCsvInputKeepsTheImportsPromises) {
    const auto inputs = regressionInputs(QStringLiteral(PERSISTENCE_CSV_FUZZ_REGRESSIONS_DIR));
    ASSERT_FALSE(inputs.isEmpty());
    for (auto it = inputs.cbegin(); it != inputs.cend(); ++it) {
        for (int variant : {0, 1}) {
            const char* broken = csv_properties::checkCsvImport(it.value(), variant);
            EXPECT_EQ(broken, nullptr) << it.key().toStdString() << ": " << broken;
        }
    }
}

}  // namespace
