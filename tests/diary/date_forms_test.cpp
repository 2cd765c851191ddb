#include "diary/date_forms.h"

#include "diary/date_key.h"
#include "diary/date_question.h"
#include "diary/day_table.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

struct Day {
    std::string text;
    std::optional<Date> key;
};

class DateFormsTest : public DiaryDesk {
protected:
    void TearDown() override {
        DateSource::setShortPattern("M/d/yyyy");
        DiaryDesk::TearDown();
    }
    void fill(const std::vector<Day>& days) {
        while (table_.ListCount() > 0)
            table_.RemoveRow(0);
        for (const Day& day : days) {
            table_.AddRow(day.text);
            if (day.key)
                table_.Cell(table_.LastIndex(), DayTable::firstKey, DateKey::of(*day.key));
        }
    }
    DateForms::Findings findings() const { return DateForms::find(DateForms::rowsOf(table_)); }
    /// What the findings would write, row by row: "" for a row that stays.
    Texts rewritten(const std::vector<Day>& days) {
        fill(days);
        Texts texts(days.size());
        for (const DateForms::MeantDay& meant : findings().otherForm)
            texts[static_cast<std::size_t>(meant.row)] = meant.day.isoDate();
        return texts;
    }
};

TEST_F(DateFormsTest, TheKeyTellsWhatATextMeant) {
    const Date april3(2026, 4, 3);
    const Date may20(2026, 5, 20);
    struct Row {
        const char* name;
        std::vector<Day> days;
        Texts want;
    };
    const std::vector<Row> rows{
        {"the user's form", {{"4/3/2026", april3}, {"5/20/2026", may20}}, {"", ""}},
        {"day before month", {{"3/4/2026", april3}, {"20/5/2026", may20}}, {"2026-04-03", "2026-05-20"}},
        {"points", {{"03.04.2026", april3}}, {"2026-04-03"}},
        {"years of two digits", {{"03.04.26", april3}, {"20/05/26", may20}}, {"2026-04-03", "2026-05-20"}},
        {"year in front", {{"2026/04/03", april3}}, {"2026-04-03"}},
        {"year, day, month", {{"2026.3.4", april3}}, {"2026-04-03"}},
        {"words around", {{"2026. 4. 3.", april3}}, {"2026-04-03"}},
        {"only the foreign ones", {{"4/3/2026", april3}, {"20.5.2026", may20}}, {"", "2026-05-20"}},
        {"changed by hand", {{"4/3/2026", may20}, {"3.4.2026", may20}}, {"", ""}},
        {"one that reads among the user's", {{"2026-04-03", april3}, {"5/20/2026", may20}}, {"", ""}},
        {"all from another desktop", {{"2026-04-03", april3}, {"2026-05-20", may20}}, {"2026-04-03", "2026-05-20"}},
        {"leading zeros are no other form", {{"04/03/2026", april3}}, {""}},
        {"but go along", {{"04/03/2026", april3}, {"20/5/2026", may20}}, {"2026-04-03", "2026-05-20"}},
        {"no dates", {{"holiday", april3}, {"", april3}, {"1/2", april3}, {"1.2.3.4", april3}}, {"", "", "", ""}},
        {"words of the user's", {{"3/4/2026 (fasting)", april3}}, {""}},
        {"beyond all calendars", {{"3/4/99999", april3}, {"99999999999/4/3", april3}}, {"", ""}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(rewritten(row.days), row.want) << row.name;
}

TEST_F(DateFormsTest, TextsWithoutAKeyAreReadTogether) {
    const auto none = std::nullopt;
    EXPECT_EQ(rewritten({{"3/4/2026", none}, {"20/4/2026", none}}), (Texts{"2026-04-03", "2026-04-20"}))
        << "a day above 12";
    EXPECT_EQ(rewritten({{"3/4/2026", none}, {"3/20/2026", none}}), (Texts{"", ""})) << "in the user's order";
    EXPECT_EQ(rewritten({{"1/2/2026", none}, {"2/2/2026", none}, {"1/3/2026", none}}),
              (Texts{"2026-02-01", "", "2026-03-01"}))
        << "only day before month brings the rows in order; 2/2 reads right";
    EXPECT_EQ(rewritten({{"2026-04-03", none}, {"2026-04-20", none}}), (Texts{"", ""})) << "readable as it is";
    EXPECT_EQ(rewritten({{"note", none}, {"3.4.2026", none}, {"20.4.2026", none}}),
              (Texts{"", "2026-04-03", "2026-04-20"}));
    EXPECT_EQ(rewritten({{"20/4/2026", none}, {"4/20/2026", none}}), (Texts{"", ""})) << "fits no order";

    using Days = std::vector<DateForms::MeantDay>;
    fill({{"3/4/2026", none}, {"5/4/2026", none}});
    EXPECT_TRUE(findings().otherForm.empty());
    EXPECT_EQ(findings().ways,
              (std::vector<Days>{{{0, "3/4/2026", Date(2026, 4, 3)}, {1, "5/4/2026", Date(2026, 4, 5)}},
                                 {{0, "3/4/2026", Date(2026, 3, 4)}, {1, "5/4/2026", Date(2026, 5, 4)}}}));
    fill({{"26-04-03", none}});
    EXPECT_EQ(findings().ways.size(), 2U) << "2003 or 2026";
    fill({{"3/3/2026", none}, {"5/5/2026", none}});
    EXPECT_TRUE(findings().isEmpty()) << "the same day in both";
}

TEST_F(DateFormsTest, TheUserIsAskedWithAnExample) {
    DateSource::setShortPattern("d/M/yyyy");
    fill({{"12/31/2025", Date(2025, 12, 31)}, {"4/3/2026", Date(2026, 4, 3)}});
    const auto ask = [this](std::optional<std::size_t> answer) {
        toolkit_.questions.clear();
        toolkit_.answers = {answer};
        return DateQuestion::ask(findings());
    };
    EXPECT_EQ(ask(0)->size(), 2U);
    EXPECT_EQ(toolkit_.questions, Texts{"2 dates were written in another form: 4/3/2026 is 2026-04-03. Show them in "
                                        "your form?"});
    EXPECT_TRUE(ask(1)->empty());
    EXPECT_FALSE(ask(std::nullopt)) << "the program was ended";

    fill({{"3/4/2026", std::nullopt}, {"5/4/2026", std::nullopt}});
    EXPECT_TRUE(ask(0)->empty()) << "they read so here";
    EXPECT_EQ(toolkit_.questions,
              Texts{"2 dates can be read in several ways. What is 3/4/2026?\n2026-04-03\n2026-03-04"});
    EXPECT_EQ(ask(1)->size(), 2U);
    EXPECT_FALSE(ask(std::nullopt));
}

TEST_F(DateFormsTest, WhatIsLeftAsItIsKeepsItsDay) {
    const std::string file = asSaved("2/1/2026@#@5\n2/2/2026@#@6\n2/13/2026@#@7\n");
    DateSource::setShortPattern("dd/MM/yyyy");
    write(applicationFile("7VXData"), file);
    Window1& window = open();
    const auto savedDays = [&] {
        window.doSortColumns();
        window.saveData();
        Texts found;
        TextInputStream lines(read(applicationFile("7VXData")));
        while (!lines.EndOfFile()) {
            const std::string line(lines.ReadLine());
            found.push_back(line.substr(0, line.find('@')) + line.substr(line.rfind('#')));
        }
        return found;
    };
    const Texts want{"2/1/2026#@063905500800", "2/2/2026#@063905587200", "2/13/2026#@063906537600"};
    const std::vector<DateForms::MeantDay> found = window.datesInQuestion().otherForm;
    window.answerDates({});
    EXPECT_EQ(savedDays(), want) << "left alone";
    window.answerDates(found);
    EXPECT_EQ(table_.Cell(0, 0), "01/02/2026");
    menuBar_.choose("EditUndo", &window);
    EXPECT_EQ(savedDays(), want) << "undone";
}

TEST_F(DateFormsTest, EveryDesktopShowsTheSameDaysAndTheFirstItsOwnFile) {
    std::string file;
    for (int day = 1; day <= 28; ++day)
        file += "2/" + std::to_string(day) + "/2026@#@5.5@#@@#@@#@@#@@#@@#@@#@5.5@#@@#@" +
                DateKey::of(Date(2026, 2, day)) + "\n";
    write(applicationFile("7VXData"), file);
    for (const char* pattern : {"dd/MM/yyyy", "dd.MM.yy", "yyyy-MM-dd", "yyyy/MM/dd", "d MMM yyyy", "M/d/yy"}) {
        SCOPED_TRACE(pattern);
        DateSource::setShortPattern(pattern);
        useApplicationFolder();
        Window1 window(toolbar_, menuBar_);
        window.Open();

        window.answerDates(window.datesInQuestion().otherForm);
        for (int row = 0; row < 28; ++row)
            EXPECT_EQ(ParseDate(window.ListBox1.Cell(row, 0)), Date(2026, 2, row + 1));
        window.saveData();
    }
    EXPECT_EQ(read(applicationFile("7VXData")), file);
}

} // namespace
} // namespace tallyvane
