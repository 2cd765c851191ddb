/// The medication schedule, a row a line.
#include "fuzz/fuzz.h"
#include "records/row_file.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Listbox list(3);
    const auto load = [&list] {
        RowFile::load(list, DataFiles::medications, true);
        return Fuzz::told(list, 3);
    };
    Fuzz::checkReader(DataFiles::medications, Fuzz::textOf(data, size), load,
                      [&list] { RowFile::save(list, DataFiles::medications); });
    return 0;
}
