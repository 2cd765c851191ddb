#include "records/row_file.h"

#include "platform/text.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::RowFile {

bool load(Listbox& list, std::string_view name, bool replace) {
    std::optional<TextInputStream> stream = DataFiles::openText(DataFiles::applicationFile(name));
    if (!stream)
        return false;
    if (replace)
        list.DeleteAllRows();
    do {
        FieldWalk fields(stream->ReadLine(), DataFiles::fieldSeparator);
        list.AddRow(fields.next());
        for (int column = 1; column < list.ColumnCount(); ++column)
            list.Cell(list.LastIndex(), column, fields.next());
    } while (!stream->EndOfFile());
    return true;
}

void save(const Listbox& list, const std::string& what, std::string_view name) {
    TextWriter rows;
    const auto columns = static_cast<std::size_t>(list.ColumnCount());
    for (int row = 0; row < list.ListCount(); ++row)
        rows.WriteFields(list.cells(row).first(columns), DataFiles::fieldSeparator);
    UnsavedFiles::save({what, std::string(name), DataFiles::applicationFileToWrite(name)}, rows.text());
}

} // namespace tallyvane::RowFile
