#include "summary/summary_window.h"

#include "settings/unsaved_files.h"
#include "summary/figures_table.h"
#include "summary_desk.h"

namespace tallyvane {

namespace {

using namespace Summary;

class SummaryWindowTest : public SummaryDesk {};

TEST_F(SummaryWindowTest, TheWindowFollowsTheTableAndKeepsItsTexts) {
    makeApplicationFolder();
    add("11/22/2026", {"100", "x"});
    std::vector<bool> selected;
    {
        SummaryWindow window(table_);
        window.selectRows = [&](const std::vector<bool>& rows) { selected = rows; };
        window.Open();
        EXPECT_EQ(window.ListBox1.Cell(0, 1), "1");
        EXPECT_EQ(window.LinkLine1.Text(), "1 reading could not be read.");
        window.LinkLine1.userPressed(0);
        EXPECT_EQ(selected, std::vector<bool>{true});
        add("11/21/2026", {"", "200"});
        window.daysChanged();
        window.daysChanged();
        window.Timer1.fire();
        EXPECT_EQ(window.ListBox1.Cell(0, 1), "2");
        EXPECT_EQ(window.ListBox1.Cell(2, 8), "200 \u00b7 11/21");
        EXPECT_EQ(window.ListBox2.Cell(0, 5), "1 \u00b7 50\u00a0%");
        window.Periods[0].userChose();
        EXPECT_EQ(window.summary().span, Span::last7);
        window.TextField1.Text("A. Patient");
        window.TextArea1.Text(std::string("Is it the walk?") + std::string(EndOfLine) + "And the pills?");
        window.CheckBox1.Value(true);
        window.PushButton1_Action();
        EXPECT_EQ(toolkit_.previews, Texts{"Blood glucose, 7 days"});
        EXPECT_EQ(toolkit_.pageBreaks(), 1) << "one page of days";
        toolkit_.answer = applicationFile("page.pdf").string();
        window.PushButton2_Action();
        EXPECT_EQ(toolkit_.pdfs, Texts{"Blood glucose, 7 days|A. Patient"});
        EXPECT_EQ(read(toolkit_.answer), "a PDF");
        toolkit_.printerReady = false;
        window.PushButton2_Action();
        ASSERT_EQ(toolkit_.messages.size(), 1U);
        EXPECT_EQ(read(toolkit_.answer), "a PDF") << "the old one stays";
        toolkit_.answer = applicationFile("figures.csv").string();
        window.PushButton3_Action();
        EXPECT_EQ(read(toolkit_.answer), figuresCsv(window.summary()));
        window.Close();
    }
    UnsavedFiles::forgetAll();
    SummaryWindow again(table_);
    again.Open();
    EXPECT_EQ(again.TextField1.Text(), "A. Patient");
    EXPECT_EQ(again.TextArea1.Text(), std::string("Is it the walk?") + std::string(EndOfLine) + "And the pills?");
    again.Close();
}

/// The rows of a click are looked up in the table as it is.
TEST_F(SummaryWindowTest, AClickAfterASortSelectsNoOtherDay) {
    add("11/20/2026", {"100"});
    add("11/22/2026", {"x"});
    SummaryWindow window(table_);
    std::vector<std::vector<bool>> selections;
    window.selectRows = [&](const std::vector<bool>& rows) { selections.push_back(rows); };
    window1_.daysChanged = [&] { window.daysChanged(); };
    window.Open();
    EXPECT_EQ(window.summary().readings.unreadableRows, std::vector<int>{1});
    window1_.ListBox1_HeaderPressed(0);
    window1_.ListBox1_HeaderPressed(0);
    window.LinkLine1.userPressed(0);
    EXPECT_TRUE(selections.empty()) << "the window looks anew first";
    window.LinkLine1.userPressed(0);
    ASSERT_EQ(selections.size(), 1U);
    EXPECT_EQ(selections[0], (std::vector<bool>{true, false}));
    Globals::gCaution = 99;
    window1_.Timer1_Action();
    window.Timer1.fire();
    EXPECT_EQ(window.summary().all().above(), 1) << "the limits are others";
    window.Close();
}

} // namespace

} // namespace tallyvane
