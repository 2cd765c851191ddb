#include "settings/snapshots.h"

#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "support/cells.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

const std::string threeDays = "1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n";

class SnapshotsTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        useApplicationFolder();
    }
    Texts sets() const {
        Texts names;
        for (const auto& entry : std::filesystem::directory_iterator(applicationFile("Snapshots")))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    std::filesystem::path copyOf(const std::string& day, const std::string& file) const {
        return applicationFile("Snapshots") / day / file;
    }
    std::filesystem::path table() const { return applicationFile("7VXData"); }
};

TEST_F(SnapshotsTest, TheFirstStartOfADayCopiesEveryFile) {
    const Texts files{"Brindlemarks Preferences", "7VXHeadings",          "QVXLogData",
                      "Tallyvane Journal",        "QVXWindowData",        "QVXContacts",
                      "QVXMedications",           "Tallyvane/QVXLogData", "Tallyvane/QVXFileData"};
    for (const std::string& file : files)
        write(applicationFile(file), "what " + file + " holds");
    StartupGlobals::gDataFolder = GetFolderItem((folder_ / "days").string());
    write(folder_ / "days" / "7VXData", threeDays);
    Snapshots::take(Date(2026, 11, 22));
    EXPECT_EQ(read(copyOf("2026-11-22", "7VXData")), threeDays);
    for (const std::string& file : files)
        EXPECT_EQ(read(copyOf("2026-11-22", file)), "what " + file + " holds");

    write(folder_ / "days" / "7VXData", "later\n");
    Snapshots::take(Date(2026, 11, 22));
    EXPECT_EQ(read(copyOf("2026-11-22", "7VXData")), threeDays);
    Snapshots::take(Date(2026, 11, 23));
    EXPECT_EQ(read(copyOf("2026-11-23", "7VXData")), "later\n");
}

TEST_F(SnapshotsTest, ThirtySetsAreKeptAndNothingElseIsTouched) {
    write(table(), threeDays);
    for (int day = 1; day <= 30; ++day)
        Snapshots::take(Date(2026, 6, day));
    write(applicationFile("Snapshots") / "my own" / "7VXData", "1");
    Snapshots::take(Date(2026, 7, 1));
    Texts names = sets();
    EXPECT_EQ(names.size(), 31U);
    EXPECT_EQ(names.front(), "2026-06-02");
    EXPECT_EQ(names.back(), "my own");

    Snapshots::take(Date(1970, 1, 1)); // the clock is wrong: today's set stays all the same
    names = sets();
    EXPECT_EQ(names.front(), "1970-01-01");
    EXPECT_EQ(names.size(), 31U);
    Snapshots::take(Date(2026, 6, 20)); // is there already, and of the past; those to come went first
    EXPECT_EQ(sets(), names);
}

TEST_F(SnapshotsTest, AnEmptyTableIsNoDayWorthKeeping) {
    write(table(), "");
    Snapshots::take(Date(2026, 11, 22));
    EXPECT_FALSE(std::filesystem::exists(applicationFile("Snapshots")));
}

TEST_F(SnapshotsTest, ADiskThatIsFullGetsNoHalfSet) {
    write(table(), threeDays);
    {
        const FailingDisk disk(FailingDisk::Call::write, 10);
        Snapshots::take(Date(2026, 11, 22));
        EXPECT_TRUE(disk.hasFailed());
    }
    EXPECT_EQ(sets(), Texts());
    EXPECT_EQ(read(table()), threeDays);
    write(applicationFile("Snapshots") / "unfinished" / "QVXContacts", "of a start that was killed");
    Snapshots::take(Date(2026, 11, 22));
    EXPECT_EQ(sets(), Texts{"2026-11-22"});
    EXPECT_EQ(read(copyOf("2026-11-22", "7VXData")), threeDays);
    EXPECT_FALSE(std::filesystem::exists(copyOf("2026-11-22", "QVXContacts")));
}

} // namespace

} // namespace tallyvane
