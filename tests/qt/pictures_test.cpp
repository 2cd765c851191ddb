#include "platform/qt/pictures.h"

#include <gtest/gtest.h>

#include <QPixmap>

#include "shell/toolbar1.h"

namespace tallyvane {

TEST(Pictures, EachIsThereInItsSizeAndSharpAtTwiceTheScale) {
    struct Row {
        std::string file;
        QSize size;
    };
    std::vector<Row> rows{
        {"over2.tiff", {11, 11}},      {"caution2.tiff", {13, 11}},
        {"zone2.tiff", {11, 11}},      {"low3.tiff", {13, 11}},
        {"under3.tiff", {11, 11}},     {"blackBar.png", {746, 26}},
        {"7VXiconMed3.png", {64, 64}}, {"vaneLogo128.png", {128, 128}},
        {"vaneLogo64.png", {64, 64}},  {"calendarpng_32x32.png", {32, 32}},
        {"printItem3.png", {32, 32}},  {"download_pagepng_32x32.png", {32, 32}},
    };
    const Toolbar1 toolbar;
    for (const ToolItem& item : toolbar.items())
        if (!item.isSpace())
            rows.push_back({item.Icon, {32, 32}});
    for (const Row& row : rows) {
        const LoadedPicture& picture = loadPicture(row.file);
        EXPECT_EQ(picture.size, row.size) << row.file;
        EXPECT_EQ(picture.icon.pixmap(row.size, 2.0).size(), row.size * 2) << row.file;
    }
    EXPECT_TRUE(loadPicture("nothing.png").size.isEmpty());
}

TEST(Pictures, LightsDifferInShape) {
    const char* files[] = {"over2.tiff", "caution2.tiff", "zone2.tiff", "low3.tiff", "under3.tiff"};
    // The outline alone: which pixels are covered, whatever their colour.
    const auto outline = [](const char* file) {
        const QImage image = loadPicture(file).icon.pixmap(loadPicture(file).size, 1.0).toImage();
        std::string covered;
        for (int y = 0; y < 11; ++y)
            for (int x = 0; x < 13; ++x)
                covered += x < image.width() && qAlpha(image.pixel(x, y)) > 127 ? '#' : ' ';
        return covered;
    };
    for (const char* first : files)
        for (const char* second : files) {
            if (first == second)
                continue;
            const std::string a = outline(first);
            const std::string b = outline(second);
            int differing = 0;
            for (std::size_t i = 0; i < a.size(); ++i)
                differing += a[i] != b[i] ? 1 : 0;
            EXPECT_GE(differing, 10) << first << " and " << second;
        }
}

} // namespace tallyvane
