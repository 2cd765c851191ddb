#include "reports/listbox_print_all.h"

#include "support/drawn.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

// Letter paper of 576 x 756 points; text of 12 points, 6 a character.

class PrintAllTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        list_.size(200, 100);
        list_.ColumnWidths("30%,20%,50%");
        list_.Heading(0, "Medication");
        list_.Heading(1, "Dosage");
        list_.Heading(2, "Schedule");
    }
    Texts printed(bool fitToPage = true) {
        ListboxPrintAll().print(list_, fitToPage);
        return drawn(toolkit_.printed);
    }

    Listbox list_{3};
};

TEST_F(PrintAllTest, HeadingsCellsShadingAndLines) {
    list_.AddRows({{"Metformin", "500", "with meals"}, {"Aspirin"}});
    // 60, 40 and 100 of 200, scaled by 2.88: 172, 115, 288.
    EXPECT_EQ(printed(), (Texts{"text 56 9 'Medication'", "text 211 9 'Dosage'", "text 407 9 'Schedule'",
                                "line 0 12 576 12", "fill 0 15 172 12", "text 3 24 'Metformin'", "fill 172 15 115 12",
                                "text 175 24 '500'", "fill 287 15 288 12", "text 290 24 'with meals'",
                                "text 3 38 'Aspirin'", "line 0 0 0 756", "line 172 0 172 756", "line 287 0 287 756"}));
    for (const GraphicsRecorder::Call& call : toolkit_.printed)
        EXPECT_EQ(call.color, call.operation == "DrawLine" ? 0xDDDDDDU : call.operation == "FillRect" ? 0xF5F5F5U : 0U);
}

TEST_F(PrintAllTest, WideTextsWrapAndMakeTheirRowHigher) {
    list_.ColumnAlignment(0, Listbox::AlignCenter);
    list_.ColumnAlignment(1, Listbox::AlignRight);
    list_.AddRows({{"ab", "cd", ""}, {"abcdefgh ijklm", "0123456789", "x"}, {"last"}}); // in 60 and 40
    EXPECT_EQ(only("text", printed(false)),
              (Texts{"text 3 9 'Medication'", "text 62 9 'Dosage'", "text 126 9 'Schedule'", "text 24 24 'ab'",
                     "text 85 24 'cd'", "text 3 38 'abcdefgh '", "text 3 50 'ijklm'", "text 63 38 '012345'",
                     "text 63 50 '6789'", "text 103 38 'x'", "text 18 64 'last'"}));
}

TEST_F(PrintAllTest, WhatTheScreenDoesNotShowIsNotPrinted) {
    list_.ColumnWidths("60%,40%");
    list_.TextSize(20);
    list_.AddRows({{"Metformin", "500", "a long remark that nobody sees"}});
    const Texts all = printed();
    EXPECT_EQ(only("text", all), (Texts{"text 122 15 'Medication'", "text 430 15 'Dosage'", "text 3 38 'Metformin'",
                                        "text 348 38 '500'"}));
    EXPECT_EQ(only("fill", all), (Texts{"fill 0 23 345 20", "fill 345 23 230 20"})) << "one line high";
}

TEST_F(PrintAllTest, PagesBeginWithTheHeadings) {
    for (int row = 0; row < 120; ++row)
        list_.AddRows({{"row " + std::to_string(row)}});
    const Texts lines = printed();
    EXPECT_EQ(toolkit_.pageBreaks(), 2);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "text 56 9 'Medication'"), 3);
    // 15 + 14 x 53 + 9 is not below 756 yet, one row more is beyond it.
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "text 3 766 'row 53'"), 0);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "text 3 24 'row 53'"), 1);
}

TEST_F(PrintAllTest, CellsKeepTheirStyles) {
    list_.AddRows({{"a", "b"}});
    list_.CellBold(0, 0, true);
    list_.CellUnderline(0, 1, true);
    list_.CellItalic(0, 1, true);
    printed();
    for (const GraphicsRecorder::Call& call : toolkit_.printed)
        if (call.operation == "DrawString")
            EXPECT_EQ(call.style, (call.text == "a"   ? TextStyle{true, false, false}
                                   : call.text == "b" ? TextStyle{false, true, true}
                                                      : TextStyle()))
                << call.text;
}

TEST_F(PrintAllTest, EmptyCancelledOrWithoutHeadings) {
    EXPECT_EQ(printed().size(), 7U) << "headings and lines";
    toolkit_.printed.clear();
    list_.AddRows({{"a"}});
    toolkit_.pageSetupReady = false;
    EXPECT_EQ(printed(), Texts());
    toolkit_.pageSetupReady = true;
    toolkit_.printerReady = false;
    EXPECT_EQ(printed(), Texts());
    toolkit_.printerReady = true;
    list_.HasHeading(false);
    EXPECT_EQ(printed(), (Texts{"fill 0 3 172 12", "text 3 12 'a'", "fill 172 3 115 12", "fill 287 3 288 12",
                                "line 0 0 0 756", "line 172 0 172 756", "line 287 0 287 756"}));
}

} // namespace

} // namespace tallyvane
