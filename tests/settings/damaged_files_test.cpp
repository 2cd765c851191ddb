#include "settings/damaged_files.h"

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/snapshots.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class DamagedFilesTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        useApplicationFolder();
    }
    /// Today's set, or that of another day, with these files.
    void copyOf(const std::string& day, const std::string& file, const std::string& content) const {
        write(applicationFile("Snapshots") / day / file, content);
    }
    std::filesystem::path table() const { return applicationFile("7VXData"); }

    const Date today_{2026, 11, 22};
};

TEST_F(DamagedFilesTest, AFullerCopyIsFoundForATableThatIsNotWhole) {
    copyOf("2026-11-20", "7VXData", wholeDays(3));
    copyOf("2026-11-21", "7VXData", wholeDays(1));
    copyOf("2026-12-01", "7VXData", wholeDays(3)); // the clock was wrong
    const auto found = [&](const std::string& content) {
        write(table(), content);
        const auto copies = DamagedFiles::findFullerCopies(today_);
        return copies.empty() ? 0 : copies[0].day.Day();
    };
    const std::string oneDay = wholeDays(1);
    const std::string twoDays = wholeDays(2);
    EXPECT_EQ(found(""), 21) << "the newest that holds more";
    EXPECT_EQ(found(oneDay + "1/2/20"), 20);
    EXPECT_EQ(found(oneDay + "\n\n\n\n\n1/2/20"), 20) << "empty lines are no days";
    EXPECT_EQ(found(oneDay + std::string(4096, '\0') + "\n"), 20) << "a block was lost";
    EXPECT_EQ(found(twoDays.substr(0, twoDays.rfind('@') + 1) + "\n"), 20) << "cut within a line, which was ended";
    EXPECT_EQ(found(oneDay + "1/2/2026\n1/3/2026\n1/4/2026"), 20) << "lines are no days";
    EXPECT_EQ(found(wholeDays(3) + "1/4/20"), 0) << "none holds more";
    EXPECT_EQ(found(oneDay), 0) << "days were taken out, and the table is whole";
    EXPECT_EQ(found(oneDay.substr(0, oneDay.size() - 1)), 0) << "only the last line end is missing";
    std::filesystem::remove(table());
    EXPECT_EQ(DamagedFiles::findFullerCopies(today_).at(0).days, 1);

    StartupGlobals::gMissingDataFolder = "/no/such/folder";
    EXPECT_TRUE(DamagedFiles::findFullerCopies(today_).empty()) << "the table is somewhere else";
    StartupGlobals::gMissingDataFolder.clear();
    StartupGlobals::gDataFolder = GetFolderItem(folder_.string());
    EXPECT_TRUE(DamagedFiles::findFullerCopies(today_).empty()) << "the copies are of a table in another folder";
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
    std::filesystem::create_directory(table());
    EXPECT_TRUE(DamagedFiles::findFullerCopies(today_).empty()) << "what stands there is not ours";
}

TEST_F(DamagedFilesTest, AFullerCopyIsFoundForLogsThatAreNotWhole) {
    const std::string logs = "walked@#@soup@#@slept well, woke early@#@a pill\n";
    for (const std::string file : {"QVXLogData", "Tallyvane/QVXLogData"}) {
        SCOPED_TRACE(file);
        copyOf("2026-11-20", file, logs);
        copyOf("2026-11-21", file, "@#@@#@@#@\n"); // nothing was written yet
        const auto found = [&](const std::string& content) {
            write(applicationFile(file), content);
            return !DamagedFiles::findFullerCopies(today_).empty();
        };
        EXPECT_TRUE(found(""));
        EXPECT_TRUE(found(logs.substr(0, 20))) << "cut";
        EXPECT_TRUE(found(logs.substr(0, logs.size() - 2))) << "cut at the end";
        EXPECT_FALSE(found(logs.substr(0, logs.size() - 1))) << "only the line end is missing";
        EXPECT_TRUE(found(logs.substr(0, 20) + std::string(logs.size() - 20, '\0'))) << "zeroed";
        EXPECT_FALSE(found("@#@@#@@#@\n")) << "the user has emptied them";
        EXPECT_FALSE(found(logs + "x"));
        EXPECT_FALSE(found(logs + logs)) << "lines that nobody reads";
        EXPECT_FALSE(found("a much longer text than the copy holds, and cut off in its first field, as it seems"));
        std::filesystem::remove(applicationFile(file));
        EXPECT_TRUE(found(logs.substr(0, 5)));
        write(applicationFile(file), logs);
    }
}

TEST_F(DamagedFilesTest, WhatWasDamagedIsKeptUnderANameOfItsOwn) {
    copyOf("2026-11-20", "7VXData", wholeDays(3));
    for (const char* damaged : {"1/1/20", "1/1/2026@#@", "1/1/2026@#@"}) {
        write(table(), damaged);
        const auto copy = DamagedFiles::findFullerCopies(today_).at(0);
        const std::string kept = DamagedFiles::keep(copy, today_);
        EXPECT_EQ(read(applicationFile(kept)), damaged);
        EXPECT_EQ(DamagedFiles::restore(copy, ""), "");
        EXPECT_EQ(read(table()), wholeDays(3));
    }
    EXPECT_EQ(read(applicationFile("7VXData damaged 2026-11-22")), "1/1/20") << "a second one does not replace it";
}

TEST_F(DamagedFilesTest, ACopyThatCannotBePutBackIsShownAndWaits) {
    copyOf("2026-11-20", "7VXData", wholeDays(3));
    write(table(), "1/1/20");
    const auto copy = DamagedFiles::findFullerCopies(today_).at(0);
    {
        const FailingDisk disk(FailingDisk::Call::reserve, 0, false);
        EXPECT_NE(DamagedFiles::restore(copy, ""), "");
        EXPECT_EQ(read(table()), "1/1/20");
    }
    ASSERT_EQ(UnsavedFiles::all().size(), 1U);
    EXPECT_EQ(UnsavedFiles::all()[0].text, wholeDays(3));
    UnsavedFiles::forgetAll();
    EXPECT_EQ(DamagedFiles::restore(copy, "no room"), "no room") << "what is there can't be kept, so it stays";
    EXPECT_EQ(read(table()), "1/1/20");
    EXPECT_EQ(UnsavedFiles::all().size(), 1U);
    std::filesystem::remove(copy.path);
    EXPECT_THROW(static_cast<void>(DamagedFiles::restore(copy, "")), IOException);
}

} // namespace
} // namespace tallyvane
