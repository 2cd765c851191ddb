#include "platform/qt/pictures.h"

#include <gtest/gtest.h>

#include <QPixmap>

#include <functional>
#include <numeric>

#include "shell/toolbar1.h"

namespace tallyvane {

TEST(Pictures, EachIsThereInItsSizeAndSharpAtTwiceTheScale) {
    const auto check = [](const std::string& file, const QSize& size) {
        const LoadedPicture& picture = loadPicture(file);
        EXPECT_EQ(picture.size, size) << file;
        EXPECT_EQ(picture.icon.pixmap(size, 2.0).size(), size * 2) << file;
    };
    const std::pair<const char*, QSize> files[] = {
        {"over2.tiff", {11, 11}},      {"caution2.tiff", {13, 11}},
        {"zone2.tiff", {11, 11}},      {"low3.tiff", {13, 11}},
        {"under3.tiff", {11, 11}},     {"blackBar.png", {746, 26}},
        {"7VXiconMed3.png", {64, 64}}, {"vaneLogo128.png", {128, 128}},
        {"vaneLogo64.png", {64, 64}},  {"calendarpng_32x32.png", {32, 32}},
        {"printItem3.png", {32, 32}},  {"download_pagepng_32x32.png", {32, 32}},
    };
    for (const auto& [file, size] : files)
        check(file, size);
    const Toolbar1 toolbar;
    for (const ToolItem& item : toolbar.items())
        if (!item.isSpace())
            check(item.Icon, {32, 32});
    EXPECT_TRUE(loadPicture("nothing.png").size.isEmpty());
}

TEST(Pictures, LightsDifferInShape) {
    std::vector<std::pair<std::string, std::string>> lights; // each with its outline: which pixels are covered
    for (const char* file : {"over2.tiff", "caution2.tiff", "zone2.tiff", "low3.tiff", "under3.tiff"}) {
        const QImage image = loadPicture(file).icon.pixmap(loadPicture(file).size, 1.0).toImage();
        std::string covered;
        for (int y = 0; y < 11; ++y)
            for (int x = 0; x < 13; ++x)
                covered += x < image.width() && qAlpha(image.pixel(x, y)) > 127 ? '#' : ' ';
        for (const auto& [other, outline] : lights) {
            const int alike = std::inner_product(covered.begin(), covered.end(), outline.begin(), 0, std::plus<>(),
                                                 std::equal_to<>());
            EXPECT_GE(11 * 13 - alike, 10) << file << " and " << other;
        }
        lights.emplace_back(file, covered);
    }
}

} // namespace tallyvane
