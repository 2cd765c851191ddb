#include "diary/date_question.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"

namespace tallyvane::DateQuestion {

namespace {

using DateForms::MeantDay;
using Days = std::vector<MeantDay>;

/// The date that is most easily taken for another day: one that reads as such, or just the first.
const MeantDay& exampleOf(const Days& days) {
    const auto found = std::find_if(days.begin(), days.end(), [](const MeantDay& meant) {
        return ParseDate(meant.date).value_or(meant.day) != meant.day;
    });
    return found == days.end() ? days.front() : *found;
}

Answer askForUsersForm(const Days& days) {
    const MeantDay& example = exampleOf(days);
    const std::string count = Grouped(static_cast<int>(days.size()));
    const std::string day = example.day.MonthAndDay();
    const std::string question =
        days.size() == 1
            ? tr("%1 date was written in another form: %2 is %3. Show it in your form?", {count, example.date, day})
            : tr("%1 dates were written in another form: %2 is %3. Show them in your form?",
                 {count, example.date, day});
    return Ask(question, tr("Show in My Form"), tr("Leave As It Is"));
}

/// The first row of which the ways say different days; they differ in one at least.
std::size_t placeOfExample(const std::vector<Days>& ways) {
    const auto differs = std::mismatch(ways[0].begin(), ways[0].end(), ways[1].begin());
    return static_cast<std::size_t>(differs.first - ways[0].begin());
}

/// The days that the user means; nothing without an answer.
std::optional<Days> askWhichWay(const std::vector<Days>& ways) {
    const std::size_t place = placeOfExample(ways);
    std::vector<std::string> answers;
    std::string list;
    std::size_t onEscape = 0;
    for (std::size_t way = 0; way < ways.size(); ++way) {
        const MeantDay& example = ways[way][place];
        answers.push_back(example.day.LongDate());
        list += "\n" + answers.back();
        if (ParseDate(example.date) == example.day)
            onEscape = way;
    }
    const std::string question = tr("%1 dates can be read in several ways. What is %2?%3",
                                    {Grouped(static_cast<int>(ways[0].size())), ways[0][place].date, list});
    const std::optional<std::size_t> answer = Ask(question, answers, onEscape);
    return answer ? std::optional(ways[*answer]) : std::nullopt;
}

} // namespace

std::optional<Days> ask(const DateForms::Findings& findings) {
    Days rewritten;
    if (!findings.otherForm.empty()) {
        const Answer answer = askForUsersForm(findings.otherForm);
        if (answer == Answer::none)
            return std::nullopt;
        if (answer == Answer::yes)
            rewritten = findings.otherForm;
    }
    if (!findings.ways.empty()) {
        const std::optional<Days> meant = askWhichWay(findings.ways);
        if (!meant)
            return std::nullopt;
        std::copy_if(meant->begin(), meant->end(), std::back_inserter(rewritten),
                     [](const MeantDay& day) { return ParseDate(day.date) != day.day; });
    }
    return rewritten;
}

} // namespace tallyvane::DateQuestion
