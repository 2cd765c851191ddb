#include "summary/figures.h"

#include <gtest/gtest.h>

#include "summary/estimated_a1c.h"
#include "summary/unit.h"

namespace tallyvane::Summary {

namespace {

TEST(Figures, QuartilesLieBetweenTheValues) {
    // By the standard library of another language: statistics.quantiles(values, n=4, method="inclusive").
    const struct {
        std::vector<double> values;
        double lower, median, upper;
    } cases[] = {
        {{7}, 7, 7, 7},
        {{9, 1}, 3, 5, 7},
        {{4, 1, 3, 2}, 1.75, 2.5, 3.25},
        {{5, 3, 9, 1, 7}, 3, 5, 7},
        {{2, 2, 2, 8, 2, 2}, 2, 2, 2},
        {{10, 60, 20, 50, 30, 40, 70, 80}, 27.5, 45, 62.5},
    };
    for (const auto& [values, lower, median, upper] : cases) {
        SCOPED_TRACE(values.size());
        const Figures figures = figuresOf(values);
        EXPECT_DOUBLE_EQ(figures.lowerQuartile, lower);
        EXPECT_DOUBLE_EQ(figures.median, median);
        EXPECT_DOUBLE_EQ(figures.upperQuartile, upper);
        EXPECT_DOUBLE_EQ(medianOf(values), median);
    }
}

TEST(Figures, SmallSamplesHaveNoDeviation) {
    EXPECT_EQ(figuresOf({}).count, 0);
    EXPECT_FALSE(figuresOf({}).deviation);
    EXPECT_FALSE(figuresOf({5.5}).deviation);
    EXPECT_FALSE(figuresOf({5.5}).variation());
    EXPECT_DOUBLE_EQ(*figuresOf({4, 8}).deviation, 2.8284271247461903);
    EXPECT_DOUBLE_EQ(*figuresOf({4, 8}).variation(), 2.8284271247461903 / 6);
}

TEST(EstimatedA1c, AgreesWithThePublishedTable) {
    // Estimated average glucose of the ADAG study's table, mg/dL, and the IFCC values of the master equation.
    const struct {
        double mean, percent, mmolPerMol;
    } rows[] = {{97, 5, 31}, {126, 6, 42}, {154, 7, 53}, {183, 8, 64}, {212, 9, 75}, {240, 10, 86}, {298, 12, 108}};
    for (const auto& [mean, percent, mmolPerMol] : rows) {
        EXPECT_NEAR(a1cOfMean(mean).percent, percent, 0.05);
        EXPECT_NEAR(a1cOfMean(mean).mmolPerMol, mmolPerMol, 0.5);
    }
    EXPECT_DOUBLE_EQ(inMgPerDecilitre(10, Unit::mmolPerLitre), 180.156);
}

TEST(EstimatedA1c, TakesEnoughReadingsWellSpread) {
    const Spread enough{28, 28, {28, 0, 14, 0, 14, 0, 0}, 6};
    EXPECT_TRUE(isEnoughForA1c(enough));
    const struct {
        const char* what;
        Spread spread;
    } tooLittle[] = {
        {"none", {}},
        {"a long period", {121, 121, {242, 0, 121, 0, 121, 0, 0}}},
        {"a week without", {28, 21, {28, 0, 14, 0, 14, 0, 0}, 7}},
        {"a short period", {13, 13, {13, 13, 13, 13, 0, 0, 0}}},
        {"few days", {28, 11, {11, 11, 11, 11, 11, 11, 11}}},
        {"few readings", {28, 28, {19, 0, 18, 0, 18, 0, 0}}},
        {"one test period with most", {28, 28, {29, 0, 14, 0, 14, 0, 0}}},
        {"two test periods", {28, 28, {28, 0, 28, 0, 0, 0, 0}}},
        {"a third that is rare", {28, 28, {26, 0, 26, 0, 5, 0, 0}}},
    };
    for (const auto& [what, spread] : tooLittle)
        EXPECT_FALSE(isEnoughForA1c(spread)) << what;
}

} // namespace

} // namespace tallyvane::Summary
