#include "platform/printing.h"

#include <gtest/gtest.h>

#include "platform/graphics_recorder.h"

namespace tallyvane {

namespace {

// Text of 12 points: 6 a character, 12 a line.

TEST(StyledTextPrinter, Lines) {
    struct Row {
        const char* name;
        const char* text;
        std::vector<std::string> want; // in lines of 60: ten characters
    };
    const std::vector<Row> rows{
        {"nothing", "", {}},
        {"fits", "ten letter", {"ten letter"}},
        {"between words", "ten letters more", {"ten ", "letters ", "more"}},
        {"blanks at the break stay on the line", "ten lette   rs", {"ten lette   ", "rs"}},
        {"line ends", "a\n\nb\n", {"a", "", "b"}},
        {"a word wider than the line", "abcdefghijklmno pq", {"abcdefghij", "klmno pq"}},
        {"of characters of two bytes",
         "\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4",
         {"\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4", "\u00e4"}},
    };
    for (const Row& row : rows) {
        GraphicsRecorder g(100, 100);
        StyledTextPrinter printer(g, row.text, 500);
        printer.Width(60);
        while (!printer.EndOfText())
            printer.DrawBlock(0, 0, 1000);
        std::vector<std::string> lines;
        for (const GraphicsRecorder::Call& call : g.calls())
            lines.push_back(call.text);
        EXPECT_EQ(lines, row.want) << row.name;
    }
}

TEST(StyledTextPrinter, BlocksTakeWhatGoesIntoThem) {
    GraphicsRecorder g(100, 100);
    StyledTextPrinter printer(g, "a\nb\nc\nd", 60);
    printer.DrawBlock(50, 100, 30);
    EXPECT_FALSE(printer.EndOfText());
    ASSERT_EQ(g.calls().size(), 2U);
    EXPECT_EQ(g.calls()[1].numbers, (std::vector<double>{50, 121})) << "the second baseline";
    printer.DrawBlock(50, 100, 0);
    EXPECT_EQ(g.calls().size(), 3U) << "one line at the least, or it would never end";
    printer.DrawBlock(50, 100, 648);
    EXPECT_TRUE(printer.EndOfText());
}

} // namespace

} // namespace tallyvane
