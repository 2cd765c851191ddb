/// The figures of a period as texts: for the window, for the page and for a file.
#pragma once

#include <string>
#include <vector>

#include "summary/period_summary.h"

namespace tallyvane::Summary {

using TableRow = std::vector<std::string>;

/// The headings of the columns: the test period, number of readings, days, mean, median and so on.
[[nodiscard]] TableRow tableHeadings();
/// A row for all readings, then one for each test period. Figures of none are "\u2013".
[[nodiscard]] std::vector<TableRow> tableRows(const PeriodSummary& summary);

/// So many of all in percent: only none is "0" and only all are "100".
[[nodiscard]] std::string percentText(int count, int all);

/// The head of a window or page: the period, on what its figures rest, their unit.
[[nodiscard]] std::string headWords(const PeriodSummary& summary);
/// How long it is: "30 days", or "3 selected days" where there are others between them.
[[nodiscard]] std::string daysWords(const PeriodSummary& summary);
/// The user's four limits.
[[nodiscard]] std::string limitsWords(const PeriodSummary& summary);
/// What is no part of the figures, or should be looked at: "3 readings could not be read."; "" for none.
[[nodiscard]] std::string leftOutWords(const PeriodSummary& summary);
/// The period in words: "August 25 to September 23, 1991".
[[nodiscard]] std::string periodWords(const PeriodSummary& summary);
/// On what the figures rest: "100 readings on 30 of 30 days".
[[nodiscard]] std::string basisWords(const PeriodSummary& summary);

/// A figure that comes first: "Mean", "167 mg/dL", "30 days before: 161 mg/dL".
struct KeyFigure {
    std::string name;
    std::string value;
    std::string note;
};
[[nodiscard]] std::vector<KeyFigure> keyFigures(const PeriodSummary& summary);
/// First, last and change; "" without weights.
[[nodiscard]] std::string weightWords(const PeriodSummary& summary);

/// The figures as comma-separated text (RFC 4180), numbers in full precision with a point, a heading line first.
[[nodiscard]] std::string figuresCsv(const PeriodSummary& summary);

} // namespace tallyvane::Summary
