/// The table of days, "7VXData".
#include "diary/day_table.h"
#include "fuzz/fuzz.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Listbox table(DayTable::columnCount);
    const auto load = [&table] {
        table.DeleteAllRows();
        static_cast<void>(DayTable::load(table));
        return Fuzz::told(table, DayTable::savedColumns);
    };
    Fuzz::checkReader(DataFiles::dayTable, Fuzz::textOf(data, size), load, [&table] { DayTable::save(table); });
    return 0;
}
