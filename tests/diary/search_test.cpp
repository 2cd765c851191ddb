#include "diary/search.h"

#include "diary/find_window.h"
#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class SearchTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        write(applicationFile("7VXData"), "11/1/2026@#@5@#@HI@#@@#@@#@@#@@#@@#@@#@70\n11/2/2026@#@6\n");
        std::filesystem::create_directory(applicationFile("Details"));
        write(applicationFile("Details") / "11:2:2026", "Metformin@@@500@@@\nendofmeds\nrice$%$Soup\nwalk\n");
        open();
        Globals::gJournal = "Felt well\nsoup again, 5 spoons\nFelt well\n";
        Globals::gFood = "bread$%$SOUP";
        Globals::gExercise = "";
        Globals::gMedication = "none";
    }
    Texts found(const char* sought) const {
        Texts lines;
        for (const Search::Hit& hit : Search::hits(table_, sought))
            lines.push_back(Search::nameOf(hit.place) + "| " + hit.line);
        return lines;
    }
    FindWindow& findWindow() {
        menuBar_.choose("DaysFind", &window1_);
        return dynamic_cast<FindWindow&>(*Window::openWindows().back());
    }
};

TEST_F(SearchTest, EverythingThatTheDiaryHoldsIsLookedThrough) {
    EXPECT_EQ(found("soup"), (Texts{"Journal| soup again, 5 spoons", "Food log| SOUP", "Details| 11/2/2026: Soup"}));
    EXPECT_EQ(found("hi"), Texts{"Day| 11/1/2026:  5  HI  5.0  70"});
    EXPECT_EQ(found("felt"), (Texts{"Journal| Felt well", "Journal| Felt well"}));
    EXPECT_EQ(found("500"), Texts{"Details| 11/2/2026: Metformin     500"});
    EXPECT_EQ(found("5.0"), Texts{"Day| 11/1/2026:  5  HI  5.0  70"}); // its average
    EXPECT_EQ(found(""), Texts());
}

TEST_F(SearchTest, AHitLeadsToItsDayWhereverThatStandsUnlessItHasChanged) {
    FindWindow& find = findWindow();
    find.EditField1.Text(" hi ");
    find.PushButton1.Action();
    ASSERT_EQ(find.ListBox1.ListCount(), 1);
    EXPECT_EQ(find.StaticText1.Text(), "1 place");
    find.ListBox1.ListIndex(0);
    EXPECT_EQ(table_.MarkedRow(), 0);
    table_.pressHeader(0);
    table_.pressHeader(0); // now it is the second
    find.ListBox1.CellClick(0, 0, 0, 0);
    EXPECT_EQ(table_.MarkedRow(), 1);
    table_.Cell(1, 2, "9");
    find.ListBox1.DoubleClick();
    EXPECT_EQ(find.StaticText1.Text(), "It has changed since. Press Find once more.");
    find.EditField1.Text("nowhere");
    find.PushButton1.Action();
    EXPECT_EQ(find.StaticText1.Text(), "Nothing was found.");
    EXPECT_EQ(&findWindow(), &find);
}

TEST_F(SearchTest, OnTheWayThroughTheHitsNoOtherWindowTakesTheKeys) {
    int shown = 0;
    window1_.showLogLine = [&shown](const Search::Hit& hit) {
        EXPECT_EQ(hit.line, "SOUP");
        EXPECT_EQ(hit.number, 1);
        ++shown;
        return true;
    };
    FindWindow& find = findWindow();
    find.EditField1.Text("soup");
    find.PushButton1.Action();
    find.ListBox1.ListIndex(1);
    EXPECT_EQ(shown, 0);
    find.ListBox1.DoubleClick();
    EXPECT_EQ(shown, 1);
}

TEST_F(SearchTest, OfManyHitsTheFirstAreShownAndAllAreCounted) {
    FindWindow& find = findWindow();
    for (int line = 0; line < 1200; ++line)
        Globals::gJournal += "walk\n";
    find.EditField1.Text("walk");
    find.PushButton1.Action();
    EXPECT_EQ(find.ListBox1.ListCount(), 1000);
    EXPECT_EQ(find.StaticText1.Text(), "1,201 places, the first 1,000 are shown");
}

TEST_F(SearchTest, ALineIsPointedOutByItsNumberAsLongAsItReadsSo) {
    TextArea area;
    area.Text("15 units\n5 units\n\n5 units\n");
    EXPECT_TRUE(area.showLine(3, "5 units"));
    EXPECT_TRUE(area.showLine(9, "5 units"));
    EXPECT_FALSE(area.showLine(0, "units"));
}

} // namespace

} // namespace tallyvane
