#include "exchange/export_data.h"

#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/files/text_output_stream.h"

namespace tallyvane {

void ExportData(const Listbox& days, const std::string& delimiter, const std::optional<FolderItem>& target) {
    std::optional<TextOutputStream> stream = target ? TextOutputStream::Create(*target) : std::nullopt;
    if (!stream)
        return;
    for (int row = 0; row < days.ListCount(); ++row)
        stream->WriteFields(days.cells(row).first(DayTable::visibleColumns), delimiter);
    stream->Close();
    const std::string name = target->Name();
    if (!name.ends_with(exportExtension))
        static_cast<void>(target->Name(name + exportExtension)); // else it keeps the name that the user chose
}

} // namespace tallyvane
