// Inputs that once broke the receive side or a reply decoder, and hand-made ones of the same kind:
// every file of the folder must keep their promises.
#include <gtest/gtest.h>

#include "link_properties.h"
#include "regression_inputs.h"

namespace {

TEST(LinkFuzzRegressions, EveryInputKeepsTheParserAndDecoderPromises) {
    const auto inputs = regressionInputs(QStringLiteral(LINK_FUZZ_REGRESSIONS_DIR));
    ASSERT_FALSE(inputs.isEmpty());
    for (auto it = inputs.cbegin(); it != inputs.cend(); ++it) {
        const QString& name = it.key();
        const QByteArray& bytes = it.value();
        for (const char* broken : {link_properties::checkFrameParser(bytes),
                                   link_properties::checkReplyDecoders(bytes)}) {
            EXPECT_EQ(broken, nullptr) << name.toStdString() << ": " << broken;
        }
    }
}

}  // namespace
