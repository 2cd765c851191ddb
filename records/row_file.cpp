#include "records/row_file.h"

#include "platform/text.h"
#include "settings/data_files.h"

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

void save(const Listbox& list, std::string_view name) {
    std::optional<TextOutputStream> stream = DataFiles::createText(DataFiles::applicationFileToWrite(name));
    if (!stream)
        return;
    for (int row = 0; row < list.ListCount(); ++row) {
        stream->Write(list.Cell(row, 0));
        for (int column = 1; column < list.ColumnCount(); ++column) {
            stream->Write(DataFiles::fieldSeparator);
            stream->Write(list.Cell(row, column));
        }
        stream->WriteLine("");
    }
    stream->Close();
}

} // namespace tallyvane::RowFile
