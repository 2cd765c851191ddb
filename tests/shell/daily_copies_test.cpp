/// What the start does with the daily copies.
#include "shell/app.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class DailyCopiesTest : public TestDesk {
protected:
    std::filesystem::path table() const { return applicationFile("7VXData"); }
    std::filesystem::path copyOf(const std::string& day) const {
        return applicationFile("Snapshots") / day / "7VXData";
    }
};

TEST_F(DailyCopiesTest, TheStartCopiesTheDaysBeforeItSavesAny) {
    const std::string days = "1/1/2026@#@5\r"; // saved, it ends otherwise
    write(table(), days);
    App app;
    app.Event_Open();
    app.windows().main->Close();
    EXPECT_NE(read(table()), days);
    EXPECT_EQ(read(copyOf("2026-11-22")), days);
}

TEST_F(DailyCopiesTest, TheUserIsAskedBeforeACopyComesBack) {
    const std::string cut = wholeDays(1) + "1/2/20";
    using Chosen = std::optional<std::size_t>;
    for (const Chosen& answer : {Chosen(), Chosen(1), Chosen(0)}) {
        SCOPED_TRACE(answer ? static_cast<int>(*answer) : -1);
        write(copyOf("2026-11-20"), wholeDays(3));
        write(table(), cut);
        toolkit_.questions.clear();
        toolkit_.answers = {answer};
        App app;
        app.Event_Open();
        EXPECT_EQ(
            toolkit_.questions,
            Texts{"The file with your days is empty or cut off: it holds 1 whole day. The copy of 11/20/2026 holds "
                  "3 days. Do you want it back in its place? What the file holds now is kept as \u201c7VXData "
                  "damaged 2026-11-22\u201d."});
        EXPECT_EQ(read(applicationFile("7VXData damaged 2026-11-22")), cut);
        if (!answer) {
            EXPECT_EQ(app.windows().main, nullptr) << "nobody has answered: nothing is opened, and nothing saved";
            app.Event_Close();
            EXPECT_EQ(read(table()), cut);
            continue;
        }
        EXPECT_EQ(app.windows().main->ListBox1.ListCount(), *answer == 0 ? 3 : 2);
        app.windows().main->Close();
    }
}

TEST_F(DailyCopiesTest, ATableThatIsLargerThanAnyDiaryIsReadOnlyIfTheUserSaysSo) {
    constexpr std::uintmax_t bytes = 123'000'000;
    write(table(), wholeDays(1));
    std::filesystem::resize_file(table(), bytes);
    toolkit_.answers = {1};
    App app;
    app.Event_Open();
    ASSERT_EQ(toolkit_.questions.size(), 1U);
    EXPECT_TRUE(toolkit_.questions[0].find("7VXData\u201d holds 123 megabytes") != std::string::npos);
    EXPECT_EQ(app.windows().main, nullptr);
    app.Event_Close();
    EXPECT_EQ(std::filesystem::file_size(table()), bytes);
    EXPECT_FALSE(std::filesystem::exists(applicationFile("Snapshots")));
}

TEST_F(DailyCopiesTest, TheFirstSaveOfEachDayIsPrecededByACopy) {
    write(table(), wholeDays(2));
    App app;
    app.Event_Open();
    Listbox& days = app.windows().main->ListBox1;
    std::string before = wholeDays(2);
    for (const int today : {22, 23, 25}) {
        DateSource::now = [today] { return Date(2026, 11, today, 8 * 3600); };
        app.Event_Deactivate(); // nothing has changed: nothing to copy before
        days.EditCell(1, 1);
        days.userTyped(std::to_string(today), 2, 0);
        app.Event_Deactivate();
        days.userTyped("9.9", 3, 0);
        app.Event_Deactivate();
        EXPECT_EQ(read(copyOf("2026-11-" + std::to_string(today))), before);
        before = read(table());
    }
    EXPECT_FALSE(std::filesystem::exists(copyOf("2026-11-24")));
}

TEST_F(DailyCopiesTest, WhereTheCopyCannotBePutBackTheDiaryOpensToBeRead) {
    write(copyOf("2026-11-20"), wholeDays(3));
    write(table(), wholeDays(1) + "1/2/20");
    toolkit_.answers = {0};
    App app;
    {
        const FailingDisk disk(FailingDisk::Call::reserve, 0, false);
        app.Event_Open();
    }
    ASSERT_NE(app.windows().main, nullptr);
    EXPECT_EQ(app.windows().main->ListBox1.ListCount(), 3);
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_NE(toolkit_.messages[0].find("The copy can't be put in its place: No space left on device"),
              std::string::npos);
    app.Event_Deactivate(); // now there is room
    EXPECT_EQ(read(table()), wholeDays(3));
}

TEST_F(DailyCopiesTest, AFolderThatCameOverOpenToOthersIsClosed) {
    using std::filesystem::perms;
    makeApplicationFolder();
    std::filesystem::permissions(folder_ / "Tallyvane", perms::all);
    App app;
    app.Event_Open();
    EXPECT_EQ(std::filesystem::status(folder_ / "Tallyvane").permissions(), perms::owner_all);
}

} // namespace

} // namespace tallyvane
