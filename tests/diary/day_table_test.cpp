#include "diary/day_table.h"

#include <random>

#include "platform/files/system_files.h"
#include "settings/globals.h"
#include "support/diary_desk.h"
#include "support/failing_disk.h"

namespace tallyvane {

namespace {

class DayTableTest : public DiaryDesk {
protected:
    /// The rows of a file, once loaded, written again.
    std::string savedAgain(const std::string& file) {
        write(applicationFile("7VXData"), file);
        table_.DeleteAllRows();
        EXPECT_TRUE(DayTable::load(table_));
        DayTable::save(table_);
        return read(applicationFile("7VXData"));
    }
};

TEST_F(DayTableTest, LinesBecomeRowsAndRowsLines) {
    const std::string full = "1/1/2026@#@5@#@6@#@@#@@#@@#@@#@7.5@#@6.2@#@180@#@063881222400\n";
    const auto check = [this](const char* name, const std::string& file, const std::string& want) {
        EXPECT_EQ(savedAgain(file), want) << name;
    };
    check("a full line", full, full);
    check("an empty file", "", "");
    check("empty lines are skipped", "\n" + full + "\n\n", full);
    check("fields that are missing are empty", "1/1/2026@#@5", "1/1/2026@#@5@#@@#@@#@@#@@#@@#@@#@@#@@#@\n");
    check("fields past the eleventh are dropped", "a@#@@#@@#@@#@@#@@#@@#@@#@@#@@#@k@#@l@#@m",
          "a@#@@#@@#@@#@@#@@#@@#@@#@@#@@#@k\n");
    const std::string noDate = "soon@#@5@#@@#@@#@@#@@#@@#@@#@5.0@#@@#@123\n";
    check("a date that can't be read", noDate, noDate);
    check("CR LF, and two days of one date", full.substr(0, full.size() - 1) + "\r\n" + full, full + full);
    check("half a separator", "a@#b@@#@#@c", "a@#b@@#@#@c@#@@#@@#@@#@@#@@#@@#@@#@@#@\n");
}

TEST_F(DayTableTest, BytesThatAreNotTouchedAreWrittenBackAsTheyWere) {
    std::mt19937 random(42);
    for (int round = 0; round < 300; ++round) {
        std::string file;
        const auto rowCount = 1 + random() % 5;
        for (unsigned row = 0; row < rowCount; ++row) {
            file += 'd';
            for (int field = 1; field < 11; ++field) {
                file += "@#@";
                for (auto length = random() % 6; length > 0; --length) {
                    const auto byte = static_cast<char>(random() % 256);
                    if (byte != '\n' && byte != '\r' && byte != '@')
                        file += byte;
                }
            }
            file += '\n';
        }
        ASSERT_EQ(savedAgain(file), file) << "round " << round;
    }
}

TEST_F(DayTableTest, ArbitraryBytesReadTheSameAfterASave) {
    std::mt19937 random(43);
    const std::string pieces[] = {"@#@",  "@",        "#",        "\n", "\r", "\r\n", std::string(1, '\0'),
                                  "\xFF", "\xE2\x82", "1/1/2026", "5.6"};
    for (int round = 0; round < 300; ++round) {
        std::string file;
        for (auto piece = random() % 60; piece > 0; --piece)
            file += pieces[random() % std::size(pieces)];
        const std::string once = savedAgain(file);
        ASSERT_EQ(savedAgain(once), once) << "round " << round;
        window1_.doAverages();
        window1_.doSortColumns();
    }
}

TEST_F(DayTableTest, ALineOfMegabytesIsOneDay) {
    const std::string cell(3000000, '7');
    const std::string line = "1/1/2026@#@" + cell + "@#@@#@@#@@#@@#@@#@@#@@#@@#@\n";
    EXPECT_EQ(savedAgain(line), line);
    window1_.doAverages();
    window1_.doSortColumns();
}

TEST_F(DayTableTest, WithoutAFileOrAFolderNothingHappens) {
    EXPECT_FALSE(DayTable::load(table_));
    std::filesystem::create_directory(applicationFile("7VXData"));
    EXPECT_FALSE(DayTable::load(table_));
    window1_.getData();
    EXPECT_EQ(window1_.StaticText16.Text(), "000") << "the strip keeps its first texts";
    table_.AddRows({{"1/1/2026"}});
    DayTable::save(table_);
    std::filesystem::remove_all(folder_ / "Tallyvane");
    DayTable::save(table_);
    StartupGlobals::gDataFolder.reset();
    DayTable::save(table_);
    EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(DayTableTest, AFullDiskLeavesTheOldDaysWhole) {
    table_.AddRows({{"1/1/2026", "5"}});
    DayTable::save(table_);
    const std::string before = read(applicationFile("7VXData"));
    table_.AddRows({{"1/2/2026", "6"}});
    {
        const FailingDisk disk(FailingDisk::Call::reserve);
        EXPECT_THROW(window1_.saveData(), IOException);
    }
    EXPECT_EQ(read(applicationFile("7VXData")), before);
    window1_.saveData();
    EXPECT_NE(read(applicationFile("7VXData")), before);
}

TEST_F(DayTableTest, ADayIsAddedSelectedAndOpenForTyping) {
    open();
    window1_.CalendarControl1.SelectedDate(Date(2026, 2, 3));
    window1_.BevelButton1_Action();
    window1_.CalendarControl1_DayDoubleClicked(); // the same day once more
    EXPECT_EQ(columnOf(table_, 0), (Texts{"2/3/2026", "2/3/2026"}));
    EXPECT_EQ(table_.ListIndex(), 1);
    EXPECT_EQ(table_.SelectedCount(), 1);
    EXPECT_EQ(table_.openRow(), 1);
    EXPECT_EQ(table_.openColumn(), 1);
    EXPECT_NE(table_.Cell(1, 10), "");
    EXPECT_EQ(window1_.StaticText1.Text(), "00.0");
}

TEST_F(DayTableTest, SelectedDaysAreRemovedAndNoOthers) {
    open();
    table_.AddRows({{"a", "5"}, {"b", "5"}, {"c", "5"}, {"d", "5"}});
    table_.select({true, false, true, false});
    window1_.BevelButton2_Action();
    EXPECT_EQ(columnOf(table_, 0), (Texts{"b", "d"}));
    EXPECT_EQ(window1_.StaticText1.Text(), "5.0") << "the strip is back to all days";
    window1_.BevelButton2_Action();
    EXPECT_EQ(table_.ListCount(), 2);
}

} // namespace
} // namespace tallyvane
