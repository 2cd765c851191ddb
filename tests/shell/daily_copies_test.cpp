/// What the start does with the daily copies.
#include "shell/app.h"
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
    const std::string cut = "1/1/2026@#@5\n1/2/20";
    using Chosen = std::optional<std::size_t>;
    for (const Chosen& answer : {Chosen(), Chosen(1), Chosen(0)}) {
        SCOPED_TRACE(answer ? static_cast<int>(*answer) : -1);
        write(copyOf("2026-11-20"), "1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n");
        write(table(), cut);
        toolkit_.questions.clear();
        toolkit_.answers = {answer};
        App app;
        app.Event_Open();
        EXPECT_EQ(
            toolkit_.questions,
            Texts{"The file with your days is empty or cut off: it holds 1 whole days. The copy of 11/20/2026 holds "
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

} // namespace

} // namespace tallyvane
