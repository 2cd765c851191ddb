/// Prints the figures of a table in the form of "7VXData": all readings, then each test period. A figure that a sample
/// is too small for is left empty.
#include <iostream>

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/files/system_files.h"
#include "summary/figures.h"
#include "summary/readings.h"

using namespace tallyvane;

namespace {

void print(const std::string& period, const Summary::Figures& figures) {
    const auto text = [](std::optional<double> figure) { return figure ? Str(*figure) : std::string(); };
    const auto ofSome = [&](double figure) { return figures.count > 0 ? Str(figure) : std::string(); };
    std::cout << period << '\t' << figures.count << '\t' << ofSome(figures.mean) << '\t' << ofSome(figures.median)
              << '\t' << text(figures.deviation) << '\t' << ofSome(figures.lowest) << '\t' << ofSome(figures.highest)
              << '\n';
}

} // namespace

int main(int argc, char** argv) {
    constexpr int wrongUse = 2;
    if (argc != 2) {
        std::cerr << "usage: summary_figures TABLE\n";
        return wrongUse;
    }
    const std::optional<std::string> text = SystemFiles::read(argv[1]);
    if (!text) {
        std::cerr << argv[1] << " can't be read\n";
        return 1;
    }
    Listbox table(DayTable::columnCount);
    DayTable::setUp(table);
    TextInputStream lines(*text);
    DayTable::addDays(table, lines);
    const Summary::Readings found = Summary::readingsOf(table);
    std::cout << "period\tn\tmean\tmedian\tsd\tlowest\thighest\n";
    print("all", Summary::figuresOf(Summary::valuesOf(found.readings, 0)));
    for (int testPeriod = 1; testPeriod <= Summary::testPeriods; ++testPeriod)
        print(std::to_string(testPeriod), Summary::figuresOf(Summary::valuesOf(found.readings, testPeriod)));
    if (found.unreadable > 0)
        std::cerr << found.unreadable << " readings could not be read\n";
    return 0;
}
