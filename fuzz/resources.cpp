/// The list of files and links, "QVXFileData".
#include "fuzz/fuzz.h"
#include "records/file_window.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    fileWindow window;
    const auto load = [&window] {
        window.ListBox1.DeleteAllRows();
        window.getFileList();
        return Fuzz::told(window.ListBox1, 2);
    };
    // Names that touch a separator are changed by the first save. From then on nothing changes.
    const std::string name = std::string(DataFiles::applicationName) + "/" + std::string(DataFiles::resources);
    Fuzz::write(name, Fuzz::textOf(data, size));
    load();
    window.saveFileList();
    Fuzz::checkReader(name, Fuzz::read(name), load, [&window] { window.saveFileList(); });
    return 0;
}
