#include "platform/qt/letter_scale.h"

#include <gtest/gtest.h>

namespace tallyvane {

namespace {

TEST(LetterScaleTest, WindowsGrowWithLargeLettersAsFarAsTheScreenGoes) {
    struct Row {
        const char* name;
        double points;
        QSize room;
        double want;
    };
    const Row rows[] = {
        {"small letters", 9, {1920, 1040}, 1},
        {"the largest that fit as they are", 12, {1920, 1040}, 1},
        {"half as large again", 18, {1920, 1040}, 1.5},
        {"a screen that is too narrow", 24, {1200, 2000}, 1.5},
        {"a screen that is too low", 24, {1920, 750}, 1.25},
        {"a screen smaller than the largest window", 24, {640, 480}, 1},
    };
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(LetterScale::of(row.points, {800, 600}, row.room), row.want) << row.name;
}

} // namespace

} // namespace tallyvane
