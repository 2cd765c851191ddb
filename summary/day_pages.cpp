#include "summary/day_pages.h"

#include <algorithm>
#include <cstddef>

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "summary/figures_table.h"
#include "summary/page_pen.h"

namespace tallyvane::Summary {

namespace {

constexpr double lineHeight = 16;
constexpr double headHeight = 62;
constexpr double dateWidth = 108;
constexpr int columns = 9; // seven readings, average, weight
constexpr Color weekendGround = RGB(236, 236, 236);

bool isWeekend(const Date& day) {
    constexpr int saturday = 5; // the first day of year 1 was a Monday
    return daysBetween(Date(1, 1, 1), day) % 7 >= saturday;
}

/// Arrows tell a range without colours: up for high, down for low, two for too high and too low.
std::string arrowsOf(const std::string& cell) {
    const auto range = isNumber(cell) && Val(cell) > 0 ? Ranges::of(Val(cell)) : std::nullopt;
    if (!range)
        return "";
    switch (*range) {
    case Ranges::Range::over:
        return "\u25b2\u25b2";
    case Ranges::Range::caution:
        return "\u25b2";
    case Ranges::Range::inZone:
        return "";
    case Ranges::Range::low:
        return "\u25bc";
    case Ranges::Range::under:
        break;
    }
    return "\u25bc\u25bc";
}

/// A page of the grid.
class Grid : private PagePen {
public:
    explicit Grid(Graphics& g) : PagePen(g), column_((g.Width() - dateWidth) / columns) {}

    void head(const PeriodSummary& summary) {
        font(14, pageText, true);
        left(tr("Days"), 0, 16);
        font(9, pageNote);
        left(fitting(headWords(summary), width() - 50), 46, 16);
        const TestPeriodNames& names = summary.names;
        font(9, pageText, true);
        for (std::size_t meal = 0; meal < names.meals.size(); ++meal)
            centred(fitting(names.meals[meal], 2 * column_ - 4),
                    dateWidth + (2.0 * static_cast<double>(meal) + 1) * column_, 38);
        for (int testPeriod = 1; testPeriod <= testPeriods; ++testPeriod)
            cell(testPeriod, names.brief[static_cast<std::size_t>(testPeriod)], "", 52);
        cell(DayTable::averageColumn, tr("average"), "", 52);
        cell(DayTable::weightColumn, tr("weight"), "", 52);
        rule(headHeight - 5);
    }
    void day(const Listbox& table, int row, double top) {
        const std::optional<Date> date = dayOf(table, row);
        const bool weekend = date && isWeekend(*date);
        if (weekend) {
            surface().ForeColor(weekendGround);
            surface().FillRect(0, top, width(), lineHeight);
        }
        const double baseline = top + lineHeight - 4;
        font(9, pageText, weekend);
        left(date ? date->AbbreviatedDate() : table.Cell(row, DayTable::dateColumn), 2, baseline);
        font(9, pageText);
        for (int column = 1; column <= columns; ++column)
            cell(column, table.Cell(row, column),
                 column <= DayTable::averageColumn ? arrowsOf(table.Cell(row, column)) : "", baseline);
    }
    void foot(const PeriodSummary& summary, double top, int page, int pages) {
        rule(top);
        font(9, pageText, true);
        const double baseline = top + lineHeight - 2;
        left(tr("Mean of the period"), 2, baseline);
        for (int testPeriod = 1; testPeriod <= testPeriods; ++testPeriod)
            mean(testPeriod, summary.samples[static_cast<std::size_t>(testPeriod)], summary.unit, baseline);
        mean(DayTable::averageColumn, summary.all(), summary.unit, baseline); // of all readings
        PagePen::foot(tr("\u25b2 high, \u25b2\u25b2 too high, \u25bc low, \u25bc\u25bc too low; weekends on grey"),
                      page, pages);
    }

private:
    void cell(int column, const std::string& text, const std::string& arrows, double baseline) {
        const double end = dateWidth + column * column_ - 14;
        right(fitting(text, column_ - 16), end, baseline);
        left(arrows, end + 1, baseline);
    }
    void mean(int column, const Sample& sample, Unit unit, double baseline) {
        if (sample.figures.count > 0)
            cell(column, valueText(sample.figures.mean, unit), "", baseline);
    }
    double column_;
};

} // namespace

std::vector<int> rowsByDay(const Listbox& table, const PeriodSummary& summary) {
    std::vector<int> rows = summary.rows;
    std::vector<double> seconds(static_cast<std::size_t>(table.ListCount()), -1);
    for (const int row : rows)
        if (const std::optional<Date> day = dayOf(table, row))
            seconds[static_cast<std::size_t>(row)] = day->TotalSeconds();
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        return seconds[static_cast<std::size_t>(a)] < seconds[static_cast<std::size_t>(b)];
    });
    return rows;
}

int dayPageCount(const PeriodSummary& summary) {
    return (static_cast<int>(summary.rows.size()) + daysOnPage - 1) / daysOnPage;
}

void drawDayPages(Graphics& g, const Listbox& table, const PeriodSummary& summary, int firstPage, int pages) {
    const std::vector<int> rows = rowsByDay(table, summary);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto onPage = i % daysOnPage;
        if (onPage == 0) {
            g.NextPage();
            g.shrinkToFit(leastPageWidth, leastPageHeight);
        }
        Grid grid(g);
        if (onPage == 0)
            grid.head(summary);
        grid.day(table, rows[i], headHeight + lineHeight * static_cast<double>(onPage));
        if (onPage + 1 == daysOnPage || i + 1 == rows.size())
            grid.foot(summary, headHeight + lineHeight * static_cast<double>(onPage + 1) + 2,
                      firstPage + static_cast<int>(i / daysOnPage), pages);
    }
}

} // namespace tallyvane::Summary
