#include "reports/diary_report.h"

#include <algorithm>

#include "platform/base/number.h"
#include "settings/globals.h"
#include "support/diary_desk.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

// Text of 12 points: 6 a character, 12 a line; 54 lines a page.

class DiaryReportTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        open();
    }
    /// What was printed: the texts of each baseline, as "104: 50 'a date' 150 'a reading'"; "fill" and "page".
    Texts printed() const {
        return printed([](double /*x*/) { return true; });
    }
    /// Of that the first columns of days, averages and details.
    Texts body() const {
        Texts lines = printed([](double x) { return x == 50 || x == 120; });
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("fill"); });
        lines.erase(lines.begin(), lines.begin() + 2); // title and heading
        return lines;
    }
    void addDays(int count) {
        for (int day = 0; day < count; ++day)
            table_.AddRows({{"day " + std::to_string(day), "5"}});
    }
    void writeDetails(const std::string& file) { write(applicationFile("Details") / "11:2:2026", file); }

    DiaryReport report_{window1_};

private:
    template <class Takes>
    Texts printed(Takes takes) const {
        Texts lines;
        double baseline = 0; // of the last text; 0 once something else was printed
        for (const GraphicsRecorder::Call& call : toolkit_.printed) {
            if (call.operation != "DrawString") {
                lines.push_back(drawn({call}).front());
                baseline = 0;
            } else if (const double x = call.numbers[0]; takes(x)) {
                if (call.numbers[1] != baseline)
                    lines.push_back(Str(call.numbers[1]) + ":");
                lines.back() += " " + Str(x) + " '" + call.text + "'";
                baseline = call.numbers[1];
            }
        }
        return lines;
    }
};

TEST_F(DiaryReportTest, HeadDaysAndAverages) {
    table_.AddRows({{"11/1/2026", "5", "6", "7", "8", "9", "10", "11", "8.0", "80"}, {"11/2/2026", "x"}});
    window1_.doAverages();
    report_.PrintAll();
    const Texts want = {
        "40: 50 'Tallyvane Report'",
        "72: 155 'BREAKFAST' 270 'LUNCH' 370 'SUPPER'",
        "84: 50 'Date' 150 'Before' 200 'After' 250 'Before' 300 'After' 350 'Before' 400 'After' 450 'Bed' 500 'Av.'",
        "fill 50 92 480 15",
        "104: 50 '11/1/2026' 150 '5' 200 '6' 250 '7' 300 '8' 350 '9' 400 '10' 450 '11' 500 '8.0'",
        "fill 50 116 480 15",
        "128: 50 '11/2/2026' 150 'x' 200 '' 250 '' 300 '' 350 '' 400 '' 450 '' 500 ''",
        "164: 50 'Averages: ' 150 '5.0' 200 '6.0' 250 '7.0' 300 '8.0' 350 '9.0' 400 '10.0' 450 '11.0' 500 '8.0'"};
    EXPECT_EQ(printed(), want);

    const auto check = [this](const char* text, Color color, const TextStyle& style = {}) {
        const auto call = std::find_if(toolkit_.printed.begin(), toolkit_.printed.end(),
                                       [&](const auto& candidate) { return candidate.text == text; });
        EXPECT_EQ(call->color, color) << text;
        EXPECT_EQ(call->style, style) << text;
        EXPECT_EQ(call->font, FontName("Verdana")) << text;
    };
    check("Tallyvane Report", 0x000080, {true, false, false});
    check("LUNCH", 0x800000);
    check("Bed", 0x800000, {false, false, true});
    check("11/1/2026", 0x000000);
    check("Averages: ", 0x800000, {true, false, false});
    EXPECT_EQ(toolkit_.printed[13].color, 0xD1E5FFU) << "the shading";
}

TEST_F(DiaryReportTest, PagesAreFilledLineByLine) {
    // Two lines a day; the first page begins at line 2, the others at line 0.
    const auto check = [this](int days, long pages, const Texts& end) {
        SCOPED_TRACE(days);
        table_.DeleteAllRows();
        addDays(days);
        report_.PrintAll();
        EXPECT_EQ(toolkit_.pageBreaks() + 1, pages);
        const Texts lines = body();
        EXPECT_EQ(Texts(lines.end() - static_cast<long>(end.size()), lines.end()), end);
    };
    check(0, 1, {"116: 50 'Averages: '"});
    check(26, 1, {"704: 50 'day 25'", "740: 50 'Averages: '"});
    check(27, 2, {"80: 50 'day 26'", "116: 50 'Averages: '"});
    check(53, 2, {"704: 50 'day 52'", "740: 50 'Averages: '"});
    check(54, 3, {"80: 50 'day 53'", "116: 50 'Averages: '"});
}

TEST_F(DiaryReportTest, LandscapePagesAreLower) {
    addDays(30); // 37 lines a page
    toolkit_.nextPaper = [] { return paperOf(756, 576); };
    FilePrintSetup_Action();
    report_.PrintAll();
    EXPECT_EQ(toolkit_.pageBreaks(), 1);
    table_.select(std::vector<bool>(30, true));
    report_.FilePrintSelected_Action();
    EXPECT_EQ(toolkit_.pageBreaks(), 1) << "the selected days are printed as on upright paper";
    EXPECT_EQ(body()[25], "704: 50 'day 25'") << "and that is drawn smaller";
    EXPECT_GE(toolkit_.lastPage.height, 740) << "the averages may stand at 740";
    EXPECT_DOUBLE_EQ(toolkit_.lastPage.width / toolkit_.lastPage.height, 756.0 / 576) << "in both directions alike";
}

TEST_F(DiaryReportTest, DetailsEndWhereThePageDoes) {
    // 73 letters of 6 points: they would fit in 450 points, but not in the 439 that are left beside 120.
    const std::string ten = "abcdefghi ";
    std::string food;
    for (int word = 0; word < 7; ++word)
        food += ten;
    writeDetails("endofmeds\n" + food + "abc d\nwalk\n");
    Globals::gIncludeFood = true;
    table_.AddRows({{"11/2/2026"}});
    Globals::ps.reset();
    toolkit_.nextPaper = [] { return paperOf(559, 806); };
    report_.PrintAll();
    EXPECT_EQ(body(), (Texts{"104: 50 '11/2/2026'", "116: 50 'Food: ' 120 '" + food + "abc '", "128: 120 'd'",
                             "164: 50 'Averages: '"}));
    EXPECT_EQ(toolkit_.lastPage.width, 559);
}

TEST_F(DiaryReportTest, DetailsFollowTheirDay) {
    const auto check = [this](const char* name, bool meds, bool exercise, bool food, const Texts& want) {
        Globals::gIncludeMeds = meds;
        Globals::gIncludeExercise = exercise;
        Globals::gIncludeFood = food;
        report_.PrintAll();
        const Texts lines = body();
        EXPECT_EQ(Texts(lines.begin() + 1, lines.end()), want) << name;
    };
    table_.AddRows({{"11/2/2026"}});
    check("wanted and not there", true, true, true, {"140: 50 'Averages: '"});
    writeDetails("Metformin@@@500@@@noon\nAspirin@@@100@@@\nendofmeds\nbread$%$$%$milk\nwalk\n");
    check("none wanted", false, false, false, {"140: 50 'Averages: '"});
    check("medication: a line less than it counts", true, false, false,
          {"116: 50 'Medication: ' 120 'Metformin     500     noon'", "128: 120 'Aspirin     100     '",
           "164: 50 'Averages: '"});
    check("exercise and food, with an empty line", false, true, true,
          {"116: 50 'Exercise: ' 120 'walk'", "128: 50 'Food: ' 120 'bread'", "140: 120 ''", "152: 120 'milk'",
           "188: 50 'Averages: '"});
}

TEST_F(DiaryReportTest, ADetailIsNeverSplit) {
    std::string lines = "one";
    for (int line = 2; line <= 60; ++line)
        lines += "$%$" + std::to_string(line);
    writeDetails("endofmeds\n\n" + lines + "\n");
    Globals::gIncludeExercise = true;
    table_.AddRows({{"11/2/2026"}, {"no date"}});
    report_.PrintAll();
    const Texts all = body();
    const auto start = std::find(all.begin(), all.end(), "80: 50 'Exercise: ' 120 'one'");
    ASSERT_NE(start, all.end()) << "at the top of a page of its own";
    EXPECT_EQ(*(start - 1), "page");
    EXPECT_EQ(*(start + 59), "788: 120 '60'") << "past the bottom";
    EXPECT_EQ(toolkit_.pageBreaks(), 2) << "the next day has a new page again";
}

TEST_F(DiaryReportTest, MedicationsStayTogether) {
    const auto check = [this](int daysBefore, const std::string& medications, const Texts& belowTheDay) {
        writeDetails(medications + "endofmeds\n\n\n");
        table_.DeleteAllRows();
        addDays(daysBefore); // two lines each, from line 2 on
        table_.AddRows({{"11/2/2026"}});
        report_.PrintAll();
        const Texts all = body();
        const auto day =
            std::find_if(all.begin(), all.end(), [](const std::string& line) { return line.ends_with("'11/2/2026'"); });
        EXPECT_EQ(Texts(day + 1, all.end()), belowTheDay) << daysBefore << " days before";
    };
    Globals::gIncludeMeds = true;
    const char* two = "a@@@b@@@c\nd@@@e@@@f\n";
    check(24, two, {"692: 50 'Medication: ' 120 'a     b     c'", "704: 120 'd     e     f'", "740: 50 'Averages: '"});
    check(25, two,
          {"page", "80: 50 'Medication: ' 120 'a     b     c'", "92: 120 'd     e     f'", "128: 50 'Averages: '"});
    check(24, "", {"716: 50 'Averages: '"});
}

TEST_F(DiaryReportTest, TheSelectedDaysAndThePaper) {
    addDays(3);
    table_.select({true, false, true});
    EXPECT_FALSE(report_.FilePrintSelected_Action());
    EXPECT_EQ(toolkit_.printed[0].text, "Marklog Report");
    EXPECT_EQ(body(), (Texts{"104: 50 'day 0'", "128: 50 'day 2'", "164: 50 'Averages: '",
                             "176: 50 'Averages of 2 selected days'"}));
    EXPECT_EQ(Globals::ps, nullptr) << "only a report of all days makes one";
    EXPECT_EQ(toolkit_.paper, nullptr);

    toolkit_.printed.clear();
    toolkit_.printerReady = false;
    EXPECT_TRUE(report_.FilePrintSelected_Action());
    report_.FilePrint_Action();
    EXPECT_TRUE(toolkit_.printed.empty());
    const PrinterSetup* setup = Globals::ps.get();
    ASSERT_NE(setup, nullptr);
    EXPECT_EQ(toolkit_.paper, setup->paper());
    toolkit_.paper = nullptr;
    EXPECT_TRUE(report_.FilePrintSelected_Action());
    EXPECT_EQ(toolkit_.paper, setup->paper());
    toolkit_.pageSetupReady = false;
    FilePrintSetup_Action();
    EXPECT_EQ(Globals::ps.get(), setup) << "cancelled";
    toolkit_.pageSetupReady = true;
    FilePrintSetup_Action();
    EXPECT_NE(Globals::ps.get(), setup);

    toolkit_.printDialogs.clear();
    report_.FileSaveAsPDF_Action();
    EXPECT_EQ(toolkit_.messages.back(), "In the dialog that follows select 'Save as PDF...' from the PDF button menu.");
    EXPECT_EQ(toolkit_.printDialogs, Texts{"Tallyvane Report"});
}

TEST(CountLines, AnEstimateByParagraphs) {
    GraphicsRecorder g(600, 800);
    g.TextSize(12);
    const std::pair<const char*, int> rows[] = {{"", 1},       {"ten letter", 1}, {"eleven lett", 2},
                                                {"a\n\nb", 3}, {"a\n", 2},        {"a word by word of twenty-one", 3}};
    for (const auto& [text, want] : rows)
        EXPECT_EQ(countLines2(text, 60, g), want) << text;
}

} // namespace

} // namespace tallyvane
