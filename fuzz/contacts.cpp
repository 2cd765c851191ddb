/// The care team, a row a line.
#include "fuzz/fuzz.h"
#include "records/row_file.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Listbox list(5);
    const auto load = [&list] {
        RowFile::load(list, DataFiles::contacts, true);
        return Fuzz::told(list, 5);
    };
    Fuzz::checkReader(DataFiles::contacts, Fuzz::textOf(data, size), load,
                      [&list] { RowFile::save(list, DataFiles::contacts); });
    return 0;
}
