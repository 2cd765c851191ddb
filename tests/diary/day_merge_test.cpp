#include "diary/day_merge.h"

#include <algorithm>
#include <random>

#include "diary/conflict_copies.h"
#include "diary/conflict_window.h"
#include "diary/day_table.h"
#include "diary/sort_keys.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/unsaved_files.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class DayMergeTest : public DiaryDesk {
protected:
    /// A file of the table: "5 1.1 2.2" is the fifth of January with two readings.
    static std::string file(const Texts& days) {
        std::string lines;
        for (const std::string& day : days)
            lines += "1/" + ReplaceAll(day.substr(0, day.find(' ')), " ", "") + "/2026@#@" +
                     ReplaceAll(day.find(' ') == std::string::npos ? "" : day.substr(day.find(' ') + 1), " ", "@#@") +
                     "\n";
        return asSaved(lines);
    }
    /// The days of a result, in the same short form; an empty reading is "-".
    static Texts shown(const std::vector<DayMerge::Joined>& days) {
        Texts texts;
        for (const DayMerge::Joined& joined : days) {
            std::string text = std::to_string(ParseDate(joined.day[0])->Day());
            for (int column = 1; column <= 2; ++column)
                if (const std::string& reading = joined.day[static_cast<std::size_t>(column)]; !reading.empty())
                    text += " " + reading;
            texts.push_back(text);
        }
        return texts;
    }
    static DayMerge::Result join(const Texts& base, const Texts& here, const Texts& there) {
        return DayMerge::join(file(base), DayMerge::daysIn(file(here)), file(there));
    }
};

TEST_F(DayMergeTest, AVersionTakesNothingAwayAndItsCorrectionsCount) {
    struct Row {
        const char* name;
        std::vector<Texts> known;
        Texts here, there, want;
        std::size_t conflicts;
    };
    const std::vector<Row> rows{
        {"nothing is known", {}, {"1 5", "2 6"}, {"1 7", "3 8"}, {"1 5", "2 6", "3 8"}, 1},
        {"corrected there", {{"1 5"}}, {"1 5"}, {"1 7"}, {"1 7"}, 0},
        {"corrected here", {{"1 5"}}, {"1 7"}, {"1 5"}, {"1 7"}, 0},
        {"corrected on both sides", {{"1 5"}}, {"1 7"}, {"1 8"}, {"1 7"}, 1},
        {"both were known, one after the other", {{"1 5"}, {"1 7"}}, {"1 7"}, {"1 5"}, {"1 7"}, 1},
        {"emptied there", {{"1 5 6"}}, {"1 5 6"}, {"1 5"}, {"1 5 6"}, 0},
        {"emptied here", {{"1 5 6"}}, {"1 5"}, {"1 5 6"}, {"1 5 6"}, 0},
        {"a day that is away there", {{"1 5", "2 6"}}, {"1 5", "2 6"}, {"1 5"}, {"1 5", "2 6"}, 0},
    };
    for (const auto& [name, known, here, there, want, conflicts] : rows) {
        SCOPED_TRACE(name);
        Texts files;
        for (const Texts& days : known)
            files.push_back(file(days));
        const DayMerge::Result joined = DayMerge::joinVersion(files, DayMerge::daysIn(file(here)), file(there));
        EXPECT_EQ(shown(joined.days), want);
        EXPECT_EQ(joined.conflicts.size(), conflicts);
    }
}

TEST_F(DayMergeTest, WhatAVersionStemsFromIsWhatCameFromOutside) {
    const auto days = UnsavedFiles::UserFile::ofApplication("Your days", DataFiles::dayTable);
    makeApplicationFolder();
    const auto arrives = [&](const std::string& text) {
        write(applicationFile("7VXData"), text);
        const auto change = UnsavedFiles::changedOutside(days);
        ASSERT_TRUE(change);
        UnsavedFiles::acceptOutside(days, *change, text, true);
    };
    write(applicationFile("7VXData"), "loaded\n");
    UnsavedFiles::setBaseline(days, "loaded\n");
    EXPECT_EQ(UnsavedFiles::ancestorsOf(days, "loaded\n"), Texts()) << "what was loaded may be nobody else's";
    arrives("first\n");
    EXPECT_TRUE(UnsavedFiles::save(days, "mine\n"));
    EXPECT_EQ(UnsavedFiles::ancestorsOf(days, "mine\n"), Texts()) << "it is no version yet";
    arrives("second\n");
    EXPECT_EQ(UnsavedFiles::ancestorsOf(days, "mine\n"), Texts{"first\n"}) << "its writer did not know the second";
    EXPECT_EQ(UnsavedFiles::ancestorsOf(days, "version\n"), Texts()) << "nobody knows what its writer knew";
    arrives("third\n");
    EXPECT_EQ(UnsavedFiles::ancestorsOf(days, "mine\n"), Texts());
}

TEST_F(DayMergeTest, WhatOneSideHasChangedIsTaken) {
    struct Row {
        const char* name;
        Texts base, here, there, want;
        int daysBroughtIn;
    };
    const std::vector<Row> rows{
        {"nothing", {"1 5", "2 6"}, {"1 5", "2 6"}, {"1 5", "2 6"}, {"1 5", "2 6"}, 0},
        {"a reading there", {"1 5", "2 6"}, {"1 5", "2 6"}, {"1 5 7", "2 6"}, {"1 5 7", "2 6"}, 1},
        {"a reading here", {"1 5"}, {"1 5 7"}, {"1 5"}, {"1 5 7"}, 0},
        {"other readings of a day", {"1 5 6"}, {"1 8 6"}, {"1 5 9"}, {"1 8 9"}, 1},
        {"the same on both sides", {"1 5"}, {"1 7"}, {"1 7"}, {"1 7"}, 0},
        {"a day there, a day here", {"1 5"}, {"1 5", "2 6"}, {"1 5", "3 7"}, {"1 5", "2 6", "3 7"}, 1},
        {"a day in the middle", {"1 5", "9 6"}, {"1 5", "9 6"}, {"1 5", "4 7", "9 6"}, {"1 5", "4 7", "9 6"}, 1},
        {"a day on top", {"2 5"}, {"2 5"}, {"3 7", "2 5"}, {"3 7", "2 5"}, 1},
        {"taken out there", {"1 5", "2 6"}, {"1 5", "2 6"}, {"2 6"}, {"2 6"}, 1},
        {"taken out here", {"1 5", "2 6"}, {"2 6"}, {"1 5", "2 6"}, {"2 6"}, 0},
        {"taken out there, changed here", {"1 5"}, {"1 7"}, {}, {"1 7"}, 0},
        {"taken out here, changed there", {"1 5"}, {}, {"1 7"}, {"1 7"}, 1},
        {"a date twice", {"1 5", "1 6"}, {"1 5", "1 6"}, {"1 5", "1 8"}, {"1 5", "1 8"}, 1},
        {"the same day added on both sides", {}, {"1 5"}, {"1 5"}, {"1 5"}, 0},
        {"sorted there", {"1 5", "2 6"}, {"1 5", "2 6"}, {"2 6", "1 5"}, {"2 6", "1 5"}, 0},
        {"sorted here", {"1 5", "2 6"}, {"2 6", "1 5"}, {"1 5", "2 6"}, {"2 6", "1 5"}, 0},
        {"sorted here, added there", {"1 5", "2 6"}, {"2 6", "1 5"}, {"1 5", "2 6", "3 7"}, {"2 6", "3 7", "1 5"}, 1},
    };
    for (const Row& row : rows) {
        const DayMerge::Result result = join(row.base, row.here, row.there);
        EXPECT_EQ(shown(result.days), row.want) << row.name;
        EXPECT_EQ(result.daysBroughtIn, row.daysBroughtIn) << row.name;
        EXPECT_TRUE(result.conflicts.empty()) << row.name;
        EXPECT_EQ(result.isAsHere, row.want == row.here) << row.name;
        EXPECT_EQ(result.isAsThere, row.want == row.there) << row.name;
    }
}

TEST_F(DayMergeTest, OnlyACellThatWasChangedOnBothSidesIsAConflict) {
    const DayMerge::Result result = join({"1 5 6"}, {"1 7 6"}, {"1 8 9"});
    EXPECT_EQ(shown(result.days), Texts{"1 7 9"});
    EXPECT_EQ(result.conflicts, (std::vector<DayMerge::Conflict>{{"1/1/2026", 0, 1, "7", "8"}}));
    EXPECT_FALSE(result.isAsThere);
    const DayMerge::Result twins = join({"1 5", "1 5"}, {"1 5", "1 6"}, {"1 5", "1 7"});
    EXPECT_EQ(twins.conflicts, (std::vector<DayMerge::Conflict>{{"1/1/2026", 1, 1, "6", "7"}})) << "of the second row";
    table_.AddRow("1/1/2026");
    table_.AddRow("1/1/2026");
    for (const int row : {0, 1})
        table_.Cell(row, 1, "6");
    EXPECT_TRUE(DayMerge::takeOther(twins.conflicts[0], table_));
    EXPECT_EQ(columnOf(table_, 1), (Texts{"6", "7"}));
    EXPECT_FALSE(DayMerge::takeOther(twins.conflicts[0], table_)) << "it has another value now";
}

TEST_F(DayMergeTest, TwoProgramsComeToTheSameDaysAndLoseNone) {
    std::mt19937 random(17); // NOLINT(cert-msc51-cpp): the same days at each run
    const auto number = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    for (int round = 0; round < 500; ++round) {
        Texts base;
        for (int day = 1; day <= 6; ++day)
            base.push_back(std::to_string(day * 2) + " " + std::to_string(100 + day));
        const auto change = [&](Texts days, int side) {
            for (int i = 0; i < 3; ++i) {
                const std::string reading = std::to_string(1000 * (side + 1) + 10 * round % 900 + i);
                const auto at = days.begin() + number(static_cast<int>(days.size()) + 1);
                if (const int kind = number(4); kind == 0 && at != days.end())
                    days.erase(at);
                else if (kind == 1)
                    std::reverse(days.begin(), days.end());
                else
                    days.insert(at, std::to_string(1 + 2 * number(14)) + " " + reading);
            }
            return days;
        };
        const Texts one = change(base, 0);
        const Texts other = change(base, 1);
        const Texts here = shown(join(base, one, other).days);
        const Texts there = shown(join(base, other, one).days);
        const std::vector<DayMerge::Conflict> conflicts = join(base, one, other).conflicts;
        if (conflicts.empty()) {
            EXPECT_EQ(here, there) << "round " << round;
        }
        for (const Texts& side : {one, other})
            for (const std::string& day : side)
                if (std::find(base.begin(), base.end(), day) == base.end()) {
                    const std::string reading = day.substr(day.find(' ') + 1);
                    const auto holds = [&](const std::string& joined) {
                        return joined.find(reading) != std::string::npos;
                    };
                    const bool isInConflict =
                        std::any_of(conflicts.begin(), conflicts.end(),
                                    [&](const DayMerge::Conflict& conflict) { return conflict.there == reading; });
                    EXPECT_TRUE(isInConflict || std::any_of(here.begin(), here.end(), holds)) << round << ": " << day;
                }
    }
}

TEST_F(DayMergeTest, AnotherProgramsDaysComeIntoTheWindowAsAStep) {
    write(applicationFile("7VXData"), file({"1 5", "2 6", "3 7"}));
    open();
    const auto row = [this](int r) { return table_.Cell(r, 0) + " " + table_.Cell(r, 1) + " " + table_.Cell(r, 2); };
    table_.EditCell(0, 2);
    table_.userTyped("5.5", 3, 0);
    table_.closeCell();
    const std::string there = file({"9 4", "1 5", "2 6 8"});
    write(applicationFile("7VXData"), there);
    window1_.bringInChanges();
    EXPECT_EQ(table_.ListCount(), 3);
    EXPECT_EQ(row(0), "1/9/2026 4 ");
    EXPECT_EQ(row(1), "1/1/2026 5 5.5");
    EXPECT_EQ(row(2), "1/2/2026 6 8");
    EXPECT_EQ(table_.Cell(2, DayTable::averageColumn), "7.0");
    EXPECT_EQ(window1_.StripLine.Text(), "Another program changed the diary: 3 days brought in");
    EXPECT_EQ(read(applicationFile("7VXData")), there) << "written with the next save";
    window1_.saveData();
    EXPECT_EQ(DayMerge::daysIn(read(applicationFile("7VXData"))), DayMerge::daysOf(table_));
    EXPECT_EQ(read(applicationFile("7VXData before 2026-11-22")), file({"1 5", "2 6", "3 7"})) << "the third is gone";
    menuBar_.choose("EditUndo", &window1_);
    EXPECT_EQ(table_.ListCount(), 3);
    EXPECT_EQ(row(0), "1/1/2026 5 5.5");
    EXPECT_EQ(row(2), "1/3/2026 7 ");
}

TEST_F(DayMergeTest, NothingIsWrittenWhereNothingHasChanged) {
    write(applicationFile("7VXData"), file({"1 5", "2 6"}));
    open();
    window1_.saveData();
    const std::string there = ReplaceAll(file({"1 5", "2 6", "4 7"}), "\n", "\r\n"); // in its own form
    write(applicationFile("7VXData"), there);
    window1_.saveData();
    EXPECT_EQ(table_.ListCount(), 3);
    window1_.saveData();
    EXPECT_EQ(read(applicationFile("7VXData")), there) << "two programs would write it to and fro";
    write(applicationFile("7VXData"), there.substr(0, there.size() / 2)); // still being written
    window1_.bringInChanges();
    EXPECT_EQ(table_.ListCount(), 3);
}

TEST_F(DayMergeTest, ACopyInConflictIsJoinedOnWhatBothSidesHadBefore) {
    const auto path = [this](const char* name) { return applicationFile(name); };
    for (const char* name :
         {"7VXData.sync-conflict-20261123-220000-ABCDEFG", "7VXData (conflicted copy 2026-11-23 220000)",
          "7VXData (Jane's conflicted copy 2026-11-23)"}) {
        write(path(name), file({"1 5"}));
        StartupGlobals::gDataFolder = DataFiles::applicationFolder();
        ASSERT_TRUE(ConflictCopies::first({})) << name;
        ConflictCopies::putAway(*ConflictCopies::first({}));
        EXPECT_FALSE(ConflictCopies::first({})) << name;
    }
    EXPECT_TRUE(std::filesystem::exists(path("7VXData brought in 2026-11-22 3")));

    // What was saved here has lost, and stands in the copy; the other computer's table has come in its place.
    write(path("7VXData"), file({"1 5", "2 6", "3 7"}));
    open();
    table_.EditCell(0, 2);
    table_.userTyped("9", 1, 0);
    window1_.saveData();
    write(path("7VXData.sync-conflict-1"), read(path("7VXData")));
    write(path("7VXData"), file({"1 5", "2 8", "4 4"}));
    window1_.bringInChanges();
    EXPECT_EQ(table_.Cell(0, 2), "") << "as the synchroniser has it";
    window1_.bringIn(*ConflictCopies::first({}));
    EXPECT_EQ(shown(DayMerge::join("", DayMerge::daysOf(table_), file({})).days),
              (Texts{"1 5 9", "2 8", "3 7", "4 4"}));
}

TEST_F(DayMergeTest, ACopyOfWhichNothingIsKnownTakesNothingAway) {
    write(applicationFile("7VXData"), file({"1 5", "2 6"}));
    open();
    window1_.bringIn({applicationFile("7VXData.sync-conflict-1"), file({"1 5 7", "3 8"})});
    EXPECT_EQ(shown(DayMerge::join("", DayMerge::daysOf(table_), file({})).days), (Texts{"1 5 7", "2 6", "3 8"}));
}

TEST_F(DayMergeTest, ATableThatAppearsLaterIsJoinedWithWhatWasTypedBefore) {
    open();
    window1_.BevelButton1_Action();
    table_.userTyped("5", 1, 0);
    write(applicationFile("7VXData"), file({"1 5", "2 6"}));
    window1_.saveData();
    EXPECT_EQ(table_.ListCount(), 3);
    EXPECT_EQ(DayMerge::daysIn(read(applicationFile("7VXData"))), DayMerge::daysOf(table_));
}

TEST_F(DayMergeTest, TheUserPicksBetweenTwoValuesOfACell) {
    write(applicationFile("7VXData"), file({"1 5", "2 6"}));
    open();
    for (int row = 0; row < 2; ++row) {
        table_.EditCell(row, 1);
        table_.userTyped("7", 1, 0);
    }
    const std::string there = file({"1 8", "2 9"});
    write(applicationFile("7VXData"), there);
    window1_.saveData();
    EXPECT_EQ(table_.Cell(0, 1), "7") << "the value here stands";
    EXPECT_EQ(read(applicationFile("7VXData of another program 2026-11-22")), there);
    auto& window = dynamic_cast<ConflictWindow&>(*Window::openWindows().back());
    ASSERT_EQ(window.ListBox1.ListCount(), 2);
    EXPECT_EQ(window.ListBox1.Cell(0, 1), "Before Breakfast");
    window.PushButton2_Action();
    EXPECT_EQ(table_.Cell(0, 1), "8");
    EXPECT_EQ(table_.Cell(0, DayTable::averageColumn), "8.0");
    window.PushButton1_Action();
    EXPECT_FALSE(window.isOpen());
    EXPECT_EQ(table_.Cell(1, 1), "7");
    menuBar_.choose("EditUndo", &window1_);
    EXPECT_EQ(table_.Cell(0, 1), "7");
}

} // namespace
} // namespace tallyvane
