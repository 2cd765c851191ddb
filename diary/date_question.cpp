#include "diary/date_question.h"

#include <algorithm>
#include <iterator>

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"

namespace tallyvane::DateQuestion {

namespace {

using Days = std::vector<DateForms::MeantDay>;

std::string textOf(const Listbox& table, const DateForms::MeantDay& meant) {
    return table.Cell(meant.row, DayTable::dateColumn);
}

Answer askForUsersForm(const Listbox& table, const Days& days) {
    const DateForms::MeantDay& example = DateForms::example(table, days);
    const std::string count = Grouped(static_cast<int>(days.size()));
    const std::string text = textOf(table, example);
    const std::string day = example.day.MonthAndDay();
    const std::string question =
        days.size() == 1
            ? tr("%1 date was written in another form: %2 is %3. Show it in your form?", {count, text, day})
            : tr("%1 dates were written in another form: %2 is %3. Show them in your form?", {count, text, day});
    return Ask(question, tr("Show in My Form"), tr("Leave As It Is"));
}

/// The days that the user means; nothing without an answer.
std::optional<Days> askWhichWay(const Listbox& table, const DateForms::Findings::TwoWays& ways) {
    const auto differs = std::mismatch(ways.one.begin(), ways.one.end(), ways.other.begin(), ways.other.end());
    const std::string one = differs.first->day.MonthAndDay();
    const std::string other = differs.second->day.MonthAndDay();
    const std::string question =
        tr("%1 dates can be read in two ways: %2 may be %3 or %4. Which is it?",
           {Grouped(static_cast<int>(ways.one.size())), textOf(table, *differs.first), one, other});
    const bool isOtherUsual = ParseDate(textOf(table, *differs.second)) == differs.second->day;
    const std::optional<std::size_t> answer = Ask(question, {one, other}, isOtherUsual ? 1 : 0);
    if (!answer)
        return std::nullopt;
    return *answer == 0 ? ways.one : ways.other;
}

} // namespace

std::optional<Days> ask(const Listbox& table, const DateForms::Findings& findings) {
    Days rewritten;
    if (!findings.otherForm.empty()) {
        const Answer answer = askForUsersForm(table, findings.otherForm);
        if (answer == Answer::none)
            return std::nullopt;
        if (answer == Answer::yes)
            rewritten = findings.otherForm;
    }
    if (!findings.twoWays.one.empty()) {
        const std::optional<Days> meant = askWhichWay(table, findings.twoWays);
        if (!meant)
            return std::nullopt;
        std::copy_if(meant->begin(), meant->end(), std::back_inserter(rewritten),
                     [&](const DateForms::MeantDay& day) { return ParseDate(textOf(table, day)) != day.day; });
    }
    return rewritten;
}

} // namespace tallyvane::DateQuestion
