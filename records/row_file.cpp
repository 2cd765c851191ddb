#include "records/row_file.h"

#include <utility>

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/files/text_output_stream.h"
#include "settings/data_files.h"
#include "settings/line_merge.h"
#include "settings/unsaved_files.h"

namespace tallyvane::RowFile {

namespace {

void appendRows(Listbox& list, TextInputStream stream) {
    do {
        FieldWalk fields(stream.ReadLine(), DataFiles::fieldSeparator);
        list.AddRow(fields.next());
        for (int column = 1; column < list.ColumnCount(); ++column)
            list.Cell(list.LastIndex(), column, fields.next());
    } while (!stream.EndOfFile());
}

std::string textOf(const Listbox& list) {
    TextWriter rows;
    const auto columns = static_cast<std::size_t>(list.ColumnCount());
    for (int row = 0; row < list.ListCount(); ++row)
        rows.WriteFields(list.cells(row).first(columns), DataFiles::fieldSeparator);
    return rows.text();
}

} // namespace

bool load(Listbox& list, std::string_view name, bool replace) {
    std::optional<TextInputStream> stream = UnsavedFiles::openText(UnsavedFiles::UserFile::ofApplication({}, name));
    if (!stream)
        return false;
    if (replace)
        list.DeleteAllRows();
    appendRows(list, std::move(*stream));
    return true;
}

void save(Listbox& list, const std::string& what, std::string_view name) {
    const UnsavedFiles::UserFile file = UnsavedFiles::UserFile::ofApplication(what, name);
    if (auto joined = UnsavedFiles::joinOutside(file, textOf(list), joinLines)) {
        list.beginStep(tr("Changes of Another Program"));
        list.DeleteAllRows();
        if (!joined->empty())
            appendRows(list, TextInputStream(std::move(*joined)));
    }
    UnsavedFiles::save(file, textOf(list));
}

void setBaseline(const Listbox& list, const std::string& what, std::string_view name) {
    UnsavedFiles::setBaseline(UnsavedFiles::UserFile::ofApplication(what, name), textOf(list));
}

} // namespace tallyvane::RowFile
