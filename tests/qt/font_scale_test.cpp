#include "platform/qt/font_scale.h"

#include <gtest/gtest.h>

namespace tallyvane {

namespace {

TEST(FontScaleTest, WindowsGrowWithLargeLettersAsFarAsTheScreenGoes) {
    const auto scale = [](double points, QSize room) { return FontScale::of(points, {800, 600}, room); };
    EXPECT_DOUBLE_EQ(scale(9, {1920, 1040}), 1) << "small letters";
    EXPECT_DOUBLE_EQ(scale(11, {1920, 1040}), 1.1) << "from the first step on";
    EXPECT_DOUBLE_EQ(scale(15, {1920, 1040}), 1.5);
    EXPECT_DOUBLE_EQ(scale(24, {1200, 2000}), 1.5) << "a screen that is too narrow";
    EXPECT_DOUBLE_EQ(scale(24, {1920, 750}), 1.25) << "a screen that is too low";
    EXPECT_DOUBLE_EQ(scale(24, {640, 480}), 1) << "a screen smaller than the largest window";
}

} // namespace

} // namespace tallyvane
