#include "platform/printing/printing.h"

#include <gtest/gtest.h>

#include "platform/drawing/graphics_recorder.h"
#include "support/cells.h"

namespace tallyvane {

namespace {

// Text of 12 points: 6 a character, 12 a line.

TEST(StyledTextPrinter, Lines) {
    const auto check = [](const char* name, const std::string& text, const Texts& want) { // in lines of ten characters
        GraphicsRecorder g(100, 100);
        StyledTextPrinter printer(g, text, 500);
        printer.Width(60);
        while (!printer.EndOfText())
            printer.DrawBlock(0, 0, 1000);
        Texts lines;
        for (const GraphicsRecorder::Call& call : g.calls())
            lines.push_back(call.text);
        EXPECT_EQ(lines, want) << name;
    };
    check("nothing", "", {});
    check("between words", "ten letters more", {"ten ", "letters ", "more"});
    check("blanks at the break stay on the line", "ten lette   rs", {"ten lette   ", "rs"});
    check("line ends", "a\n\nb\n", {"a", "", "b"});
    check("a word wider than the line", "abcdefghijklmno pq", {"abcdefghij", "klmno pq"});
    const std::string five = "\u00e4\u00e4\u00e4\u00e4\u00e4"; // of two bytes each
    check("a wide word of such characters", five + five + "\u00e4", {five + five, "\u00e4"});
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
