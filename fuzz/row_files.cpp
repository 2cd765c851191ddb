/// The care team and the medication schedule, a row a line.
#include "fuzz/fuzz.h"
#include "records/row_file.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    for (const auto& [name, columns] : {std::pair(DataFiles::contacts, 5), {DataFiles::medications, 3}}) {
        Listbox list(columns);
        const auto load = [&, file = name, count = columns] {
            RowFile::load(list, file, true);
            return Fuzz::told(list, count);
        };
        Fuzz::checkReader(name, Fuzz::textOf(data, size), load,
                          [&, file = name] { RowFile::save(list, "A list", file); });
    }
    return 0;
}
