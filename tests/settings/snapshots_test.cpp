#include "settings/snapshots.h"

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
        makeApplicationFolder();
        StartupGlobals::gDataFolder = DataFiles::applicationFolder();
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
    Snapshots::take(Date(2025, 1, 1)); // the clock was wrong: older than all, and the one to go
    Snapshots::take(Date(2026, 7, 1));
    const Texts names = sets();
    EXPECT_EQ(names.size(), 31U);
    EXPECT_EQ(names.front(), "2026-06-02");
    EXPECT_EQ(names.back(), "my own");
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
    write(applicationFile("Snapshots") / "unfinished" / "7VXData", "of a start that was killed");
    Snapshots::take(Date(2026, 11, 22));
    EXPECT_EQ(sets(), Texts{"2026-11-22"});
    EXPECT_EQ(read(copyOf("2026-11-22", "7VXData")), threeDays);
}

TEST_F(SnapshotsTest, AFullerCopyIsFoundForATableThatIsNotWhole) {
    write(table(), threeDays);
    Snapshots::take(Date(2026, 11, 20));
    write(table(), "1/1/2026@#@5\n");
    Snapshots::take(Date(2026, 11, 21));
    const auto found = [this](const char* content) {
        write(table(), content);
        const std::optional<Snapshots::Copy> copy = Snapshots::fullerThanTable();
        return copy ? copy->day.Day() : 0;
    };
    EXPECT_EQ(found(""), 21) << "the newest that holds more";
    EXPECT_EQ(found("1/1/2026@#@5\n1/2/20"), 20);
    EXPECT_EQ(found("1/1/2026@#@5\n1/2/2026\n1/3/2026\n1/4/2026"), 0) << "none holds more";
    EXPECT_EQ(found("1/1/2026@#@5\n"), 0) << "days were taken out, and the table is whole";
    std::filesystem::remove(table());
    EXPECT_EQ(Snapshots::fullerThanTable()->days, 1);
    StartupGlobals::gMissingDataFolder = "/no/such/folder";
    EXPECT_FALSE(Snapshots::fullerThanTable()) << "the table is somewhere else";
    StartupGlobals::gMissingDataFolder.clear();
    std::filesystem::create_directory(table());
    EXPECT_FALSE(Snapshots::fullerThanTable()) << "what stands there is not ours";
}

TEST_F(SnapshotsTest, TheUserIsAskedBeforeACopyComesBack) {
    for (const bool saysYes : {false, true}) {
        write(applicationFile("Snapshots") / "2026-11-20" / "7VXData", threeDays);
        write(table(), "1/1/2026@#@5\n1/2/20");
        toolkit_.questions.clear();
        toolkit_.saysYes = saysYes;
        App app;
        app.Event_Open();
        EXPECT_EQ(toolkit_.questions,
                  Texts{"The file with your days is empty or cut off. The copy of 11/20/2026 holds 3 "
                        "days. Do you want it back?"});
        EXPECT_EQ(app.window1()->ListBox1.ListCount(), saysYes ? 3 : 2);
        EXPECT_EQ(std::filesystem::exists(applicationFile("7VXData damaged")), saysYes);
        app.window1()->Close();
    }
    EXPECT_EQ(read(applicationFile("7VXData damaged")), "1/1/2026@#@5\n1/2/20");
}

} // namespace

} // namespace tallyvane
