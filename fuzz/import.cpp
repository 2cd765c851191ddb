/// Import and export: what came in goes out, and comes in the same.
#include "diary/day_table.h"
#include "exchange/export_data.h"
#include "exchange/import_reader.h"
#include "fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    const std::string delimiter = size % 2 == 0 ? "," : "\t";
    Listbox table(DayTable::columnCount);
    const std::optional<FolderItem> file = GetFolderItem(Fuzz::path("readings.txt"));
    const auto load = [&]() -> std::optional<std::string> {
        table.DeleteAllRows();
        const auto reader = ImportReader::open(*file, delimiter);
        while (!reader->readFor(std::chrono::milliseconds(100))) {
        }
        table.AddRows(reader->takeRows());
        bool startsWithMark = false; // a second byte order mark, which is text and can't stand at the beginning again
        for (const char* mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"})
            startsWithMark = startsWithMark || table.Cell(0, 0).starts_with(mark);
        return startsWithMark ? std::nullopt : Fuzz::told(table, DayTable::visibleColumns);
    };
    Fuzz::checkReader("readings.txt", Fuzz::textOf(data, size), load, [&] { ExportData(table, delimiter, file); });
    return 0;
}
