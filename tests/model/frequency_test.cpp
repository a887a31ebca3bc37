#include <gtest/gtest.h>

#include "model/frequency.h"

namespace {

TEST(FrequencyText, PictureAppliesToNumbersOnly) {
    const struct {
        const char* in;
        const char* out;
    } cases[] = {
        {"462.5625", "462.56250"}, {"0", "000.00000"},       {"400", "400.00000"},
        {"46", "046.00000"},       {"1234.5", "1234.50000"}, {" 409.75 ", "409.75000"},
        {"abc", "abc"},            {"", ""},                 {"462.5x", "462.5x"},
        {"-5", "-005.00000"},      {"462.555000305", "462.55500"},
    };
    for (const auto& c : cases) EXPECT_EQ(formatFrequency(c.in), c.out) << c.in;
}

TEST(FrequencyText, NumericValueReadsTheLeadingNumber) {
    const struct {
        const char* in;
        double value;
    } cases[] = {
        {"462.56250", 462.5625}, {"  400", 400}, {"462.5x", 462.5}, {"abc", 0},
        {"", 0},                 {"-3.5", -3.5}, {"1e2", 100},      {".5", 0.5},
        {"D023", 0},             {"12e", 12},
    };
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(numericValue(c.in), c.value) << c.in;
}

TEST(BandLimits, LowerLimitPerBandAndEdges) {
    EXPECT_EQ(BandLimits::forBand(0).lower, 400);
    EXPECT_EQ(BandLimits::forBand(1).lower, 300);
    EXPECT_EQ(BandLimits::forBand(2).lower, 200);
    for (int band : {3, 4, -1, 99}) EXPECT_EQ(BandLimits::forBand(band).lower, 100) << band;

    const BandLimits band0 = BandLimits::forBand(0);
    EXPECT_FALSE(band0.contains(399.99999));
    EXPECT_TRUE(band0.contains(400.0));
    EXPECT_TRUE(band0.contains(480.0));  // the "400--470M" label is only a label
    EXPECT_TRUE(band0.contains(499.99999));
    EXPECT_FALSE(band0.contains(500.0));
}

}  // namespace
