#include "platform/base/number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace tallyvane {

TEST(Number, ValReadsWhatStandsAtTheStart) {
    const std::pair<const char*, double> rows[] = {
        {"", 0},     {"abc", 0},  {"5", 5},   {"5.6", 5.6},  {"\t8", 8}, {"-3.5", -3.5}, {"+4", 4},  {"--4", 0},
        {"- 4", 0},  {".5", 0.5}, {"5.", 5},  {".", 0},      {"-", 0},   {"1.2.3", 1.2}, {"5,6", 5}, {"1e3", 1},
        {"0x10", 0}, {"inf", 0},  {"nan", 0}, {"00012", 12}, {"1O", 1},  {"\u00a05", 0}};
    for (const auto& [text, want] : rows)
        EXPECT_EQ(Val(text), want) << '"' << text << '"';
    EXPECT_EQ(Val("  7.25 mmol"), 7.25);
    EXPECT_EQ(Val("12.0000000000000000001"), 12);
}

TEST(Number, ValOfEndlessDigitsStaysANumber) {
    EXPECT_EQ(Val(std::string(5000, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("-" + std::string(5000, '9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(Val("0." + std::string(5000, '0') + "1"), 0);
}

TEST(Number, StrIsPlainAndReadsBackToTheSameDouble) {
    EXPECT_EQ(Str(13.0), "13");
    EXPECT_EQ(Str(5.6), "5.6");
    EXPECT_EQ(Str(-0.0), "0");
    EXPECT_EQ(Str(1e21), "1000000000000000000000");
    EXPECT_EQ(Str(0.0000001), "0.0000001");
    std::mt19937_64 random(20261122);
    for (int i = 0; i < 20000; ++i) {
        const auto number = std::bit_cast<double>(std::uint64_t{random()});
        if (std::isfinite(number))
            ASSERT_EQ(Val(Str(number)), number);
    }
}

TEST(Number, FormatFollowsTheMask) {
    struct Row {
        double number;
        const char* mask;
        const char* want;
    };
    const Row rows[] = {
        {5.0, "##.#", "5."},     {5.62, "##.#", "5.6"},   {0.5, "##.#", ".5"},       {123.4, "##.#", "123.4"},
        {6.96, "##.#", "7."},    {180, "###.#", "180."},  {99.95, "##.#", "100."},   {0, "##.#", "."},
        {1.5, "###.00", "1.50"}, {0.25, "###.00", ".25"}, {7, "#.0", "7.0"},         {0, "#.0", ".0"},
        {5, "-#.0#", "5.0"},     {5.25, "-#.0#", "5.25"}, {-5.25, "-#.0#", "-5.25"}, {-0.001, "-#.0#", ".0"},
        {-3.5, "##.#", "3.5"},   {12.5, "#", "13"},       {12.49, "#", "12"},        {0, "#", ""},
        {7.4, "00.0", "07.4"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Format(row.number, row.mask), row.want) << row.number << " by " << row.mask;
}

TEST(Number, FormatRoundsTheDecimalTextHalfAwayFromZero) {
    // As binary fractions 1.15, 2.675 and 8.45 lie below the tie that their text shows.
    EXPECT_EQ(Format(1.15, "##.#"), "1.2");
    EXPECT_EQ(Format(2.675, "#.00"), "2.68");
    EXPECT_EQ(Format(8.45, "##.#"), "8.5");
    EXPECT_EQ(Format(6.25, "##.#"), "6.3");
    EXPECT_EQ(Format(-6.25, "-##.#"), "-6.3");
    EXPECT_EQ(Format(9.999, "#.00"), "10.00");
}

TEST(Number, ATextIsANumberAsAWholeOrNot) {
    for (const char* text : {"5", "5.6", " 12.4 ", "-3", "+7", ".5", "5."})
        EXPECT_TRUE(isNumber(text)) << text;
    for (const char* text :
         {"", " ", "5,6", "7.2x", "1O", "1.2.3", ".", "-", "--3", "1e3", "0x10", "5 6", "inf", "\r5", "5\n"})
        EXPECT_FALSE(isNumber(text)) << text;
}

} // namespace tallyvane
