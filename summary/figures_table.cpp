#include "summary/figures_table.h"

#include <cstddef>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "settings/globals.h"

namespace tallyvane::Summary {

namespace {

constexpr double percent = 100;

/// "31 %", with a blank that breaks no line.
std::string share(int count, int all) { return percentText(count, all) + "\u00a0%"; }

/// Day and month in the short form of the desktop: "6/10".
std::string dayAndMonth(const Date& day) {
    std::string text = day.ShortDate();
    const std::size_t year = text.find(std::to_string(day.Year()));
    if (year == std::string::npos)
        return text;
    constexpr std::size_t digits = 4;
    text.erase(year == 0 ? 0 : year - 1, digits + 1);
    return text;
}

/// As it was typed, with its day.
std::string valueOn(const std::optional<Reading>& reading, bool isOfOneYear) {
    if (!reading)
        return "\u2013";
    return Str(reading->value) + " \u00b7 " + (isOfOneYear ? dayAndMonth(*reading->day) : reading->day->ShortDate());
}

TableRow rowOf(const std::string& name, const Sample& sample, Unit unit, bool isOfOneYear) {
    const std::string none = "\u2013";
    const Figures& figures = sample.figures;
    const auto value = [&](double figure) { return figures.count > 0 ? valueText(figure, unit) : none; };
    const auto variation = figures.variation();
    TableRow row{name,
                 Grouped(figures.count),
                 Grouped(sample.days),
                 value(figures.mean),
                 value(figures.median),
                 figures.deviation ? valueText(*figures.deviation, unit) : none,
                 variation ? Format(*variation * percent, "0") + "\u00a0%" : none,
                 valueOn(sample.lowest, isOfOneYear),
                 valueOn(sample.highest, isOfOneYear)};
    for (const Ranges::Range range : rangesUpward)
        row.push_back(
            figures.count > 0 ? Grouped(sample.in(range)) + " \u00b7 " + share(sample.in(range), figures.count) : none);
    return row;
}

std::string fromTo(double from, double to, Unit unit) {
    return tr("%1 to %2", {valueText(from, unit), valueWithUnit(to, unit)});
}

KeyFigure estimatedA1c(const PeriodSummary& summary) {
    const std::string estimate = tr("estimated from finger-stick readings, no laboratory value");
    if (!summary.a1c)
        return {tr("Estimated HbA1c"),
                summary.calendarDays() > mostDaysForA1c ? tr("period too long") : tr("not enough readings"), estimate};
    return {
        tr("Estimated HbA1c"),
        tr("%1\u00a0% (%2\u00a0mmol/mol)", {Format(summary.a1c->percent, "0.0"), Format(summary.a1c->mmolPerMol, "0")}),
        estimate};
}

std::string csvField(const std::string& text) {
    const bool isPlain = text.find_first_of(",\"\r\n") == std::string::npos;
    return isPlain ? text : "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

std::string csvLine(const TableRow& fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i)
        line.append(i == 0 ? "" : ",").append(csvField(fields[i]));
    return line + "\r\n";
}

TableRow csvRow(const PeriodSummary& summary, std::size_t testPeriod) {
    const Sample& sample = summary.samples[testPeriod];
    const Figures& figures = sample.figures;
    const auto number = [&](double figure) { return figures.count > 0 ? Str(figure) : std::string(); };
    const auto dayOf = [](const std::optional<Reading>& reading) {
        return reading ? reading->day->isoDate() : std::string();
    };
    TableRow row{summary.names.title[testPeriod],
                 summary.days ? summary.days->first.isoDate() : "",
                 summary.days ? summary.days->second.isoDate() : "",
                 nameOf(summary.unit),
                 Str(figures.count),
                 Str(sample.days),
                 number(figures.mean),
                 number(figures.median),
                 figures.deviation ? Str(*figures.deviation) : "",
                 figures.variation() ? Str(*figures.variation()) : "",
                 number(figures.lowest),
                 dayOf(sample.lowest),
                 number(figures.highest),
                 dayOf(sample.highest)};
    for (const Ranges::Range range : rangesUpward)
        row.push_back(Str(sample.in(range)));
    if (testPeriod == 0) {
        const std::vector<Weight>& weights = summary.readings.weights;
        row.push_back(summary.a1c ? Str(summary.a1c->percent) : "");
        row.push_back(weights.empty() ? "" : Str(weights.front().value));
        row.push_back(weights.empty() ? "" : Str(weights.back().value));
        row.push_back(Str(summary.readings.unreadable));
    } else {
        row.insert(row.end(), {"", "", "", ""});
    }
    return row;
}

} // namespace

std::string percentText(int count, int all) {
    if (count > 0 && percent * count < 0.5 * all)
        return "<1";
    if (count < all && percent * count >= 99.5 * all)
        return ">99";
    return all == 0 ? "0" : Format(percent * count / all, "0");
}

TableRow tableHeadings() {
    return {tr("Test period"), tr("n"),       tr("Days"),    tr("Mean"), tr("Median"), tr("SD"),   tr("CV"),
            tr("Lowest"),      tr("Highest"), tr("Too low"), tr("Low"),  tr("Target"), tr("High"), tr("Too high")};
}

std::vector<TableRow> tableRows(const PeriodSummary& summary) {
    const bool isOfOneYear = !summary.days || summary.days->first.Year() == summary.days->second.Year();
    std::vector<TableRow> rows;
    for (std::size_t i = 0; i < summary.samples.size(); ++i)
        rows.push_back(rowOf(summary.names.title[i], summary.samples[i], summary.unit, isOfOneYear));
    return rows;
}

std::string daysWords(const PeriodSummary& summary) {
    const std::string count = Grouped(summary.dayCount);
    if (!summary.isContinuous)
        return tr("%1 selected days", {count});
    return summary.dayCount == 1 ? tr("1 day") : tr("%1 days", {count});
}

std::string periodWords(const PeriodSummary& summary) {
    if (!summary.days)
        return tr("No days");
    const auto& [first, last] = *summary.days;
    if (first == last)
        return first.AbbreviatedDate();
    const std::string words = tr("%1 to %2", {first.AbbreviatedDate(), last.AbbreviatedDate()});
    return summary.isContinuous ? words : tr("%1 within %2", {daysWords(summary), words});
}

std::string basisWords(const PeriodSummary& summary) {
    const std::string readings =
        summary.all().figures.count == 1 ? tr("1 reading") : tr("%1 readings", {Grouped(summary.all().figures.count)});
    return tr("%1 on %2 of %3", {readings, Grouped(summary.all().days), daysWords(summary)});
}

std::string headWords(const PeriodSummary& summary) {
    const std::string dot = "  \u00b7  ";
    return periodWords(summary) + dot + basisWords(summary) + dot + tr("all values in %1", {nameOf(summary.unit)});
}

std::string limitsWords(const PeriodSummary& summary) {
    using namespace Globals;
    const auto text = [&](double limit) { return valueText(limit, summary.unit); };
    return tr("Limits: too low below %1, low below %2, high from %3, too high from %4",
              {text(gUnder), text(gLow), text(gCaution), valueWithUnit(gOver, summary.unit)});
}

std::string leftOutWords(const PeriodSummary& summary) {
    std::string words;
    const auto add = [&](int count, const std::string& one, const std::string& more) {
        if (count > 0)
            words += (words.empty() ? "" : " ") + (count == 1 ? one : tr(more, {Grouped(count)}));
    };
    add(summary.readings.unreadable, tr("1 reading could not be read."), "%1 readings could not be read.");
    add(summary.ofOtherUnit, tr("1 reading looks like another unit."), "%1 readings look like another unit.");
    add(static_cast<int>(summary.undatedRows.size()), tr("1 row with readings has no date."),
        "%1 rows with readings have no date.");
    return words;
}

std::vector<KeyFigure> keyFigures(const PeriodSummary& summary) {
    using namespace Globals;
    const Sample& all = summary.all();
    const Unit unit = summary.unit;
    if (all.figures.count == 0)
        return {{tr("Readings"), tr("none"), tr("in this period")}};
    if (summary.isOfOtherUnit())
        return {{tr("Unit"), tr("does not fit"), tr("Your limits are in %1, these readings are not.", {nameOf(unit)})}};
    const int count = all.figures.count;
    const auto part = [count](int readings) { return tr("%1 of %2", {Grouped(readings), Grouped(count)}); };
    std::string mean = tr("median %1", {valueWithUnit(all.figures.median, unit)});
    if (summary.before)
        mean += " \u00b7 " +
                tr("the %1 before: %2", {daysWords(summary), valueWithUnit(summary.before->figures.mean, unit)});
    const std::string spread = all.figures.deviation ? valueWithUnit(*all.figures.deviation, unit) : tr("one reading");
    const auto variation = all.figures.variation();
    return {
        {tr("Mean"), valueWithUnit(all.figures.mean, unit), mean},
        {tr("In your target zone"), share(all.within(), count),
         fromTo(gLow, gCaution, unit) + " \u00b7 " + part(all.within())},
        {tr("Below"), share(all.below(), count),
         tr("below %1", {valueWithUnit(gLow, unit)}) + " \u00b7 " + part(all.below())},
        {tr("Above"), share(all.above(), count),
         tr("from %1", {valueWithUnit(gCaution, unit)}) + " \u00b7 " + part(all.above())},
        {tr("Spread (SD)"), spread, variation ? tr("CV %1\u00a0%", {Format(*variation * percent, "0")}) : ""},
        estimatedA1c(summary),
    };
}

std::string weightWords(const PeriodSummary& summary) {
    const std::vector<Weight>& weights = summary.readings.weights;
    if (weights.empty())
        return "";
    const double first = weights.front().value;
    const double last = weights.back().value;
    if (weights.size() == 1)
        return tr("Weight: %1 on %2", {Str(first), weights.front().day.AbbreviatedDate()});
    return tr("Weight: %1 on %2, %3 on %4, change %5",
              {Str(first), weights.front().day.AbbreviatedDate(), Str(last), weights.back().day.AbbreviatedDate(),
               (last > first ? "+" : "") + Format(last - first, "-0.0")});
}

std::string figuresCsv(const PeriodSummary& summary) {
    std::string text = csvLine({"test period",  "from",        "to",        "unit",       "n",
                                "days",         "mean",        "median",    "sd",         "cv",
                                "lowest",       "lowest on",   "highest",   "highest on", "too low",
                                "low",          "target zone", "high",      "too high",   "hba1c estimated %",
                                "first weight", "last weight", "unreadable"});
    for (std::size_t i = 0; i < summary.samples.size(); ++i)
        text += csvLine(csvRow(summary, i));
    return text;
}

} // namespace tallyvane::Summary
