#include "diary/search.h"

#include <algorithm>

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
    EXPECT_EQ(found("soup"),
              (Texts{"Journal| soup again, 5 spoons", "Food log| SOUP", "Details| 11/2/2026: Soup"}));
    EXPECT_EQ(found("hi"), Texts{"Day| 11/1/2026:  5  HI  70"});
    EXPECT_EQ(found("felt"), Texts{"Journal| Felt well"});
    EXPECT_EQ(found("500"), Texts{"Details| 11/2/2026: Metformin     500"});
    EXPECT_EQ(found("5.0"), Texts{"Day| 11/1/2026:  5  HI  70"}); // its average
    EXPECT_EQ(found(""), Texts());
}

TEST_F(SearchTest, AClickLeadsToTheDayUnlessItHasChanged) {
    FindWindow& find = findWindow();
    find.EditField1.Text(" 11/2 ");
    find.PushButton1.Action();
    ASSERT_EQ(find.ListBox1.ListCount(), 1);
    EXPECT_EQ(find.StaticText1.Text(), "1 place");
    find.ListBox1.ListIndex(0);
    EXPECT_EQ(table_.MarkedRow(), 1);
    table_.RemoveRow(0);
    find.ListBox1.DoubleClick();
    EXPECT_EQ(find.StaticText1.Text(), "It has changed since. Press Find once more.");
    find.PushButton1.Action();
    find.ListBox1.ListIndex(0);
    EXPECT_EQ(table_.MarkedRow(), 0);
    find.EditField1.Text("nowhere");
    find.PushButton1.Action();
    EXPECT_EQ(find.StaticText1.Text(), "Nothing was found.");
    EXPECT_EQ(&findWindow(), &find);
}

TEST_F(SearchTest, ALineOfALogIsShownByWhoeverShowsTheLogs) {
    std::string shown;
    window1_.showLogLine = [&shown](Search::Place, const std::string& line) {
        shown = line;
        return true;
    };
    FindWindow& find = findWindow();
    find.EditField1.Text("bread");
    find.PushButton1.Action();
    find.ListBox1.ListIndex(0);
    EXPECT_EQ(shown, "bread");
}

} // namespace

} // namespace tallyvane
