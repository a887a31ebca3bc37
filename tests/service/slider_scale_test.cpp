// Sliders and their boxes: what a box shows for a position, and where a slider stands for what
// a box holds (typed, or received from the radio).

#include <gtest/gtest.h>

#include "service/field_value.h"

namespace {

TEST(SliderScale, TheBoxShowsThePositionInItsUnit) {
    const struct {
        SliderScale scale;
        int position;
        const char* text;
    } cases[] = {
        {{0, 330, 2}, 170, "1.70"}, {{0, 330, 2}, 165, "1.65"}, {{0, 330, 2}, 5, "0.05"},
        {{0, 330, 2}, 330, "3.30"}, {{10, 254, 0}, 21, "21"},   {{-127, 127, 0}, -40, "-40"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.scale.text(c.position), c.text) << c.position;
}

TEST(SliderScale, TheSliderFollowsANumberClampedToItsRange) {
    const struct {
        SliderScale scale;
        const char* text;
        std::optional<int> position;
    } cases[] = {
        {{0, 128, 0}, "70", 70},           {{0, 128, 0}, " 35 ", 35},
        {{0, 128, 0}, "200", 128},  // received above the range: the slider stops at its end
        {{10, 254, 0}, "5", 10},           {{10, 254, 0}, "255", 254},
        {{10, 254, 0}, "20.5", 20},  // halves to even
        {{10, 254, 0}, "1e300", 254},      {{-127, 127, 0}, "-128", -127},
        {{0, 330, 2}, "1.7", 170},         {{0, 330, 2}, "1.625", 162},
        {{0, 330, 2}, "3.4", 330},         {{0, 330, 2}, "-1", 0},
        {{0, 128, 0}, "", std::nullopt},  // not a number: the slider stays
        {{0, 128, 0}, "7a", std::nullopt}, {{0, 330, 2}, ".", std::nullopt},
    };
    for (const auto& c : cases) EXPECT_EQ(c.scale.position(c.text), c.position) << c.text;
}

}  // namespace
