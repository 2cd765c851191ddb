#include "settings/line_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/texts.h"

namespace tallyvane {

namespace {

TEST(LineMerge, WhatEitherSideHasWrittenIsKept) {
    struct Row {
        const char* name;
        Texts base, here, there, want;
    };
    const std::vector<Row> rows{
        {"nothing", {"a", "b"}, {"a", "b"}, {"a", "b"}, {"a", "b"}},
        {"a line there", {"a", "b"}, {"a", "b"}, {"a", "x", "b"}, {"a", "x", "b"}},
        {"a line on each side", {"a", "b", "c"}, {"h", "a", "b", "c"}, {"a", "b", "t", "c"}, {"h", "a", "b", "t", "c"}},
        {"taken out there", {"a", "b", "c"}, {"a", "b", "c", "h"}, {"a", "c"}, {"a", "c", "h"}},
        {"the same on both sides", {"a"}, {"a", "x"}, {"a", "x"}, {"a", "x"}},
        {"at the same place", {"a"}, {"a", "y"}, {"a", "x"}, {"a", "x", "y"}},
        {"the same line changed", {"a", "b", "c"}, {"a", "bh", "c"}, {"a", "bt", "c"}, {"a", "bh", "bt", "c"}},
        {"changed here, taken out there", {"a", "b"}, {"a", "bh"}, {"a"}, {"a", "bh"}},
        {"a line that is there already", {"a"}, {"a", "walk"}, {"a", "walk", "walk"}, {"a", "walk", "walk"}},
        {"from nothing", {""}, {"h"}, {"t"}, {"h", "t"}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(mergeLines(row.base, row.here, row.there), row.want) << row.name;
        EXPECT_EQ(mergeLines(row.base, row.there, row.here), row.want) << row.name << ", the other way round";
    }
}

TEST(LineMerge, RandomTextsLoseNoNewLineAndBothSidesAgree) {
    std::mt19937 random(5); // NOLINT(cert-msc51-cpp): the same texts at each run
    const auto number = [&random](std::size_t below) { return static_cast<std::size_t>(random() % below); };
    for (int round = 0; round < 300; ++round) {
        Texts base;
        for (std::size_t i = number(12); i-- > 0;)
            base.push_back(std::string(1, static_cast<char>('a' + number(4))));
        const auto edited = [&](const char* side) {
            Texts text = base;
            for (std::size_t i = number(5); i-- > 0;) {
                const auto at = text.begin() + static_cast<std::ptrdiff_t>(number(text.size() + 1));
                if (number(3) == 0 && at != text.end())
                    text.erase(at);
                else
                    text.insert(at, side + std::to_string(i));
            }
            return text;
        };
        const Texts here = edited("here");
        const Texts there = edited("there");
        const Texts joined = mergeLines(base, here, there);
        EXPECT_EQ(joined, mergeLines(base, there, here)) << round;
        EXPECT_EQ(mergeLines(base, here, base), here) << round;
        for (const Texts& side : {here, there})
            for (const std::string& line : side)
                if (line.size() > 1) {
                    EXPECT_NE(std::find(joined.begin(), joined.end(), line), joined.end()) << round << ": " << line;
                }
    }
}

TEST(LineMerge, LongTextsAreJoinedAsAWhole) {
    Texts here(5000, "h");
    Texts there(5000, "t");
    EXPECT_EQ(mergeLines({"a"}, here, there).size(), 5000 + 5000U);
}

} // namespace
} // namespace tallyvane
