#include "reports/diary_report.h"

#include <algorithm>

#include "settings/globals.h"
#include "support/drawn.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

// Text of 12 points: 6 a character, 12 a line; 54 lines a page.

class DiaryReportTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        open();
    }
    /// What was printed, with "page" for a new one.
    Lines printed() const {
        Lines lines;
        for (const GraphicsRecorder::Call& call : toolkit_.printed) {
            GraphicsRecorder alone(0, 0);
            if (call.operation == "NextPage")
                lines.emplace_back("page");
            else if (call.operation == "DrawString")
                alone.DrawString(call.text, call.numbers[0], call.numbers[1]);
            else
                alone.FillRect(call.numbers[0], call.numbers[1], call.numbers[2], call.numbers[3]);
            const Lines calls = drawn(alone);
            lines.insert(lines.end(), calls.begin(), calls.end());
        }
        return lines;
    }
    /// The lines from the first one below the headings to the averages.
    Lines body() const {
        Lines lines = printed();
        lines.erase(lines.begin(), lines.begin() + 13);
        const auto averages = std::find_if(lines.begin(), lines.end(),
                                           [](const std::string& line) { return line.ends_with("'Averages: '"); });
        lines.erase(averages + 1, lines.end());
        return lines;
    }
    long pages() const {
        const Lines lines = printed();
        return std::count(lines.begin(), lines.end(), "page") + 1;
    }
    void addDays(int count) {
        for (int day = 0; day < count; ++day)
            addRow({"day " + std::to_string(day), "5"});
    }
    void writeDetails(const std::string& file) { write(applicationFile("Details") / "11:2:2026", file); }

    DiaryReport report_{window1_};
};

TEST_F(DiaryReportTest, HeadDaysAndAverages) {
    addRow({"11/1/2026", "5", "6", "7", "8", "9", "10", "11", "8.0", "80"});
    addRow({"11/2/2026", "x"});
    window1_.doAverages();
    report_.PrintAll();
    const Lines want{"text 50 40 'Tallyvane Report'",
                     "text 155 72 'BREAKFAST'",
                     "text 270 72 'LUNCH'",
                     "text 370 72 'SUPPER'",
                     "text 50 84 'Date'",
                     "text 150 84 'Before'",
                     "text 200 84 'After'",
                     "text 250 84 'Before'",
                     "text 300 84 'After'",
                     "text 350 84 'Before'",
                     "text 400 84 'After'",
                     "text 450 84 'Bed'",
                     "text 500 84 'Av.'",
                     "fill 50 92 480 15",
                     "text 50 104 '11/1/2026'",
                     "text 150 104 '5'",
                     "text 200 104 '6'",
                     "text 250 104 '7'",
                     "text 300 104 '8'",
                     "text 350 104 '9'",
                     "text 400 104 '10'",
                     "text 450 104 '11'",
                     "text 500 104 '8.0'",
                     "fill 50 116 480 15",
                     "text 50 128 '11/2/2026'",
                     "text 150 128 'x'",
                     "text 200 128 ''",
                     "text 250 128 ''",
                     "text 300 128 ''",
                     "text 350 128 ''",
                     "text 400 128 ''",
                     "text 450 128 ''",
                     "text 500 128 ''",
                     "text 50 164 'Averages: '",
                     "text 150 164 '5.0'",
                     "text 200 164 '6.0'",
                     "text 250 164 '7.0'",
                     "text 300 164 '8.0'",
                     "text 350 164 '9.0'",
                     "text 400 164 '10.0'",
                     "text 450 164 '11.0'",
                     "text 500 164 '8.0'"};
    EXPECT_EQ(printed(), want);

    const auto callOf = [&](const std::string& text) {
        return *std::find_if(toolkit_.printed.begin(), toolkit_.printed.end(),
                             [&](const auto& call) { return call.text == text; });
    };
    struct Row {
        const char* text;
        Color color;
        TextStyle style;
    };
    for (const Row& row : {Row{"Tallyvane Report", 0x000080, {true, false, false}}, Row{"LUNCH", 0x800000, {}},
                           Row{"Bed", 0x800000, {false, false, true}}, Row{"11/1/2026", 0x000000, {}},
                           Row{"Averages: ", 0x800000, {true, false, false}}}) {
        EXPECT_EQ(callOf(row.text).color, row.color) << row.text;
        EXPECT_EQ(callOf(row.text).style, row.style) << row.text;
        EXPECT_EQ(callOf(row.text).font, FontName("Verdana")) << row.text;
    }
    EXPECT_EQ(toolkit_.printed[13].color, 0xD1E5FFU) << "the shading";
}

TEST_F(DiaryReportTest, PagesAreFilledLineByLine) {
    struct Row {
        int days;
        long pages;
        std::string lastDay; // and its line
        std::string averages;
    };
    // Two lines a day; the first page begins at line 2, the others at line 0.
    const std::vector<Row> rows{
        {0, 1, "", "text 50 116 'Averages: '"},
        {26, 1, "text 50 704 'day 25'", "text 50 740 'Averages: '"},
        {27, 2, "text 50 80 'day 26'", "text 50 116 'Averages: '"},
        {53, 2, "text 50 704 'day 52'", "text 50 740 'Averages: '"},
        {54, 3, "text 50 80 'day 53'", "text 50 116 'Averages: '"},
    };
    for (const Row& row : rows) {
        table_.DeleteAllRows();
        addDays(row.days);
        report_.PrintAll();
        EXPECT_EQ(pages(), row.pages) << row.days;
        const Lines dates = only("text 50 ", body());
        EXPECT_EQ(dates.back(), row.averages) << row.days;
        if (row.days > 0)
            EXPECT_EQ(dates[dates.size() - 2], row.lastDay) << row.days;
    }
}

TEST_F(DiaryReportTest, LandscapePagesAreLower) {
    class Landscape : public Paper {
        double width() const override { return 756; }
        double height() const override { return 576; }
        int resolution() const override { return 72; }
        bool ask() override { return true; }
    };
    addDays(18); // 37 lines a page
    toolkit_.nextPaper = [] { return std::make_unique<Landscape>(); };
    FilePrintSetup_Action();
    report_.PrintAll();
    EXPECT_EQ(pages(), 2);
    table_.select(std::vector<bool>(18, true));
    report_.FilePrintSelected_Action();
    EXPECT_EQ(pages(), 1) << "the selected days are printed as on upright paper";
}

TEST_F(DiaryReportTest, DetailsFollowTheirDay) {
    const std::string file = "Metformin@@@500@@@noon\nAspirin@@@100@@@\nendofmeds\nbread$%$$%$milk\nwalk\n";
    struct Row {
        const char* name;
        const char* file;
        bool meds, exercise, food;
        Lines want; // but for the day itself
    };
    const std::vector<Row> rows{
        {"none wanted", file.c_str(), false, false, false, {"text 50 140 'Averages: '"}},
        {"medication: a line less than it counts",
         file.c_str(),
         true,
         false,
         false,
         {"text 50 116 'Medication: '", "text 120 116 'Metformin     500     noon'",
          "text 120 128 'Aspirin     100     '", "text 50 164 'Averages: '"}},
        {"exercise and food, with an empty line",
         file.c_str(),
         false,
         true,
         true,
         {"text 50 116 'Exercise: '", "text 120 116 'walk'", "text 50 128 'Food: '", "text 120 128 'bread'",
          "text 120 140 ''", "text 120 152 'milk'", "text 50 188 'Averages: '"}},
        {"wanted and not there", nullptr, true, true, true, {"text 50 140 'Averages: '"}},
    };
    addRow({"11/2/2026"});
    for (const Row& row : rows) {
        std::filesystem::remove_all(applicationFile("Details"));
        std::filesystem::create_directories(applicationFile("Details"));
        if (row.file != nullptr)
            writeDetails(row.file);
        Globals::gIncludeMeds = row.meds;
        Globals::gIncludeExercise = row.exercise;
        Globals::gIncludeFood = row.food;
        report_.PrintAll();
        Lines lines = body();
        lines.erase(lines.begin(), lines.begin() + 10);
        EXPECT_EQ(lines, row.want) << row.name;
    }
}

TEST_F(DiaryReportTest, ADetailIsNeverSplit) {
    std::filesystem::create_directories(applicationFile("Details"));
    std::string lines = "one";
    for (int line = 2; line <= 60; ++line)
        lines += "$%$" + std::to_string(line);
    writeDetails("endofmeds\n\n" + lines + "\n");
    Globals::gIncludeExercise = true;
    addRow({"11/2/2026"});
    addRow({"no date"});
    report_.PrintAll();
    const Lines all = body();
    const auto start = std::find(all.begin(), all.end(), "text 50 80 'Exercise: '");
    ASSERT_NE(start, all.end()) << "at the top of a page of its own";
    EXPECT_EQ(*(start - 1), "page");
    EXPECT_EQ(*(start + 60), "text 120 788 '60'") << "past the bottom";
    EXPECT_EQ(pages(), 3) << "the next day has a new page again";
}

TEST_F(DiaryReportTest, MedicationsStayTogether) {
    struct Row {
        int daysBefore; // two lines each, from line 2 on
        const char* file;
        Lines want; // below the day
    };
    const char* two = "a@@@b@@@c\nd@@@e@@@f\nendofmeds\n\n\n";
    const std::vector<Row> rows{
        {24,
         two,
         {"text 50 692 'Medication: '", "text 120 692 'a     b     c'", "text 120 704 'd     e     f'",
          "text 50 740 'Averages: '"}},
        {25,
         two,
         {"page", "text 50 80 'Medication: '", "text 120 80 'a     b     c'", "text 120 92 'd     e     f'",
          "text 50 128 'Averages: '"}},
        {24, "endofmeds\n\n\n", {"text 50 716 'Averages: '"}},
    };
    std::filesystem::create_directories(applicationFile("Details"));
    Globals::gIncludeMeds = true;
    for (const Row& row : rows) {
        writeDetails(row.file);
        table_.DeleteAllRows();
        addDays(row.daysBefore);
        addRow({"11/2/2026"});
        report_.PrintAll();
        const Lines all = body();
        const auto day =
            std::find_if(all.begin(), all.end(), [](const std::string& line) { return line.ends_with("'11/2/2026'"); });
        EXPECT_EQ(Lines(day + 9, all.end()), row.want) << row.daysBefore;
    }
}

TEST_F(DiaryReportTest, TheSelectedDaysAndThePaper) {
    addDays(3);
    table_.select({true, false, true});
    EXPECT_FALSE(report_.FilePrintSelected_Action());
    EXPECT_EQ(toolkit_.printed[0].text, "Marklog Report");
    EXPECT_EQ(only("text 50 ", body()),
              (Lines{"text 50 104 'day 0'", "text 50 128 'day 2'", "text 50 164 'Averages: '"}));
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
    EXPECT_EQ(toolkit_.printDialogs, std::vector<PrintTarget>{PrintTarget::pdf});
}

TEST(CountLines, AnEstimateByParagraphs) {
    GraphicsRecorder g(600, 800);
    g.TextSize(12);
    struct Row {
        const char* text;
        int want;
    };
    for (const Row& row : {Row{"", 1}, Row{"a", 1}, Row{"ten letter", 1}, Row{"eleven lett", 2}, Row{"a\nb", 2},
                           Row{"a\n\nb", 3}, Row{"a\n", 2}, Row{"a word by word of twenty-one", 3}})
        EXPECT_EQ(countLines2(row.text, 60, g), row.want) << row.text;
}

} // namespace

} // namespace tallyvane
