#include "summary/figures_table.h"

#include <cstddef>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "settings/globals.h"
#include "summary/test_period_names.h"

namespace tallyvane::Summary {

namespace {

constexpr double percent = 100;

/// "31 %", with a blank that breaks no line.
/// "31 %", with a blank that breaks no line.
std::string share(int count, int all) { return (all == 0 ? "0" : Format(percent * count / all, "0")) + "\u00a0%"; }

TableRow rowOf(const std::string& name, const Sample& sample, Unit unit) {
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
                 value(figures.lowest),
                 value(figures.highest)};
    for (auto range = sample.inRange.rbegin(); range != sample.inRange.rend(); ++range)
        row.push_back(figures.count > 0 ? Grouped(*range) + " \u00b7 " + share(*range, figures.count) : none);
    return row;
}

std::string withUnit(double value, Unit unit) { return valueText(value, unit) + " " + nameOf(unit); }

std::string fromTo(double from, double to, Unit unit) {
    return tr("%1 to %2", {valueText(from, unit), withUnit(to, unit)});
}

KeyFigure estimatedA1c(const PeriodSummary& summary) {
    const std::string estimate = tr("estimated from finger-stick readings, no laboratory value");
    if (!summary.a1c)
        return {tr("Estimated HbA1c"), tr("not enough readings"), estimate};
    return {tr("Estimated HbA1c"),
            tr("%1 % (%2 mmol/mol)", {Format(summary.a1c->percent, "0.0"), Format(summary.a1c->mmolPerMol, "0")}),
            estimate};
}

std::string csvField(const std::string& text) {
    const bool isPlain = text.find_first_of(",\"\r\n") == std::string::npos;
    return isPlain ? text : "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

std::string csvLine(const TableRow& fields) {
    std::string line;
    for (const std::string& field : fields)
        line += (line.empty() ? "" : ",") + csvField(field);
    return line + "\r\n";
}

TableRow csvRow(const std::string& name, const Sample& sample, Unit unit) {
    const Figures& figures = sample.figures;
    const auto number = [&](double figure) { return figures.count > 0 ? Str(figure) : std::string(); };
    const auto dayOf = [](const std::optional<Reading>& reading) {
        return reading && reading->day ? reading->day->isoDate() : std::string();
    };
    TableRow row{name,
                 nameOf(unit),
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
    for (auto range = sample.inRange.rbegin(); range != sample.inRange.rend(); ++range)
        row.push_back(Str(*range));
    return row;
}

} // namespace

TableRow tableHeadings() {
    return {tr("Test period"), tr("n"),       tr("Days"),    tr("Mean"), tr("Median"), tr("SD"),   tr("CV"),
            tr("Lowest"),      tr("Highest"), tr("Too low"), tr("Low"),  tr("Target"), tr("High"), tr("Too high")};
}

std::vector<TableRow> tableRows(const PeriodSummary& summary) {
    const TestPeriodNames names = testPeriodNames();
    std::vector<TableRow> rows;
    for (std::size_t i = 0; i < summary.samples.size(); ++i)
        rows.push_back(rowOf(names.title[i], summary.samples[i], summary.unit));
    return rows;
}

std::string periodWords(const PeriodSummary& summary) {
    if (!summary.days)
        return tr("No days");
    const auto& [first, last] = *summary.days;
    if (first == last)
        return first.AbbreviatedDate();
    return tr("%1 to %2", {first.AbbreviatedDate(), last.AbbreviatedDate()});
}

std::string basisWords(const PeriodSummary& summary) {
    return tr("%1 readings on %2 of %3 days",
              {Grouped(summary.all().figures.count), Grouped(summary.all().days), Grouped(summary.dayCount)});
}

std::vector<KeyFigure> keyFigures(const PeriodSummary& summary) {
    using namespace Globals;
    const Sample& all = summary.all();
    const Unit unit = summary.unit;
    if (all.figures.count == 0)
        return {{tr("Readings"), tr("none"), tr("in this period")}};
    const int count = all.figures.count;
    const auto part = [count](int readings) { return tr("%1 of %2", {Grouped(readings), Grouped(count)}); };
    const std::string before = summary.before
                                   ? tr("as many days before: %1", {withUnit(summary.before->figures.mean, unit)})
                                   : tr("median %1", {withUnit(all.figures.median, unit)});
    const std::string spread = all.figures.deviation ? withUnit(*all.figures.deviation, unit) : tr("one reading");
    const auto variation = all.figures.variation();
    return {
        {tr("Mean"), withUnit(all.figures.mean, unit), before},
        {tr("In your target zone"), share(all.within(), count),
         fromTo(gLow, gCaution, unit) + " \u00b7 " + part(all.within())},
        {tr("Below"), share(all.below(), count),
         tr("below %1", {withUnit(gLow, unit)}) + " \u00b7 " + part(all.below())},
        {tr("Above"), share(all.above(), count),
         tr("from %1", {withUnit(gCaution, unit)}) + " \u00b7 " + part(all.above())},
        {tr("Spread (SD)"), spread, variation ? tr("CV %1 %", {Format(*variation * percent, "0")}) : ""},
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
    const TestPeriodNames names = testPeriodNames();
    std::string text = csvLine({"test period", "unit", "n", "days", "mean", "median", "sd", "cv", "lowest", "lowest on",
                                "highest", "highest on", "too low", "low", "target zone", "high", "too high"});
    for (std::size_t i = 0; i < summary.samples.size(); ++i)
        text += csvLine(csvRow(names.title[i], summary.samples[i], summary.unit));
    return text;
}

} // namespace tallyvane::Summary
