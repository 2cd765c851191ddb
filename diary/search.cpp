#include "diary/search.h"

#include <utility>

#include "diary/day_details.h"
#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/log_record.h"

namespace tallyvane::Search {

namespace {

class Seeker {
public:
    Seeker(const Listbox& table, std::string_view sought) : table_(table), sought_(Folded(sought)) {}

    void lookInTable() {
        for (int row = 0; row < table_.ListCount(); ++row)
            for (int column = 0; column < DayTable::visibleColumns; ++column)
                if (isIn(table_.Cell(row, column))) {
                    addDay(Place::table, row, dayLine(row));
                    break;
                }
    }

    void lookInDetails() {
        const std::optional<FolderItem> folder = DataFiles::applicationFile(DataFiles::details);
        if (!folder || !folder->Exists())
            return;
        for (int row = 0; row < table_.ListCount(); ++row) {
            const std::optional<Date> day = ParseDate(table_.Cell(row, DayTable::dateColumn));
            if (!day)
                continue;
            const DayDetails details = DayDetails::of(*day);
            for (const std::string& text : {details.medications, details.exercise, details.food})
                for (const auto& [number, line] : linesWithIt(text))
                    addDay(Place::details, row, table_.Cell(row, DayTable::dateColumn) + ": " + Trim(line));
        }
    }

    void lookInText(Place place, const std::string& text) {
        for (const auto& [number, line] : linesWithIt(text))
            found.push_back({place, 0, number, std::string(line)});
    }

    std::vector<Hit> found;

private:
    bool isIn(std::string_view text) const { return !text.empty() && Folded(text).find(sought_) != std::string::npos; }

    /// With their numbers.
    std::vector<std::pair<int, std::string_view>> linesWithIt(const std::string& text) const {
        std::vector<std::pair<int, std::string_view>> lines;
        int number = 0;
        for (FieldWalk walk(text, EndOfLine); !walk.atEnd(); ++number)
            if (const std::string_view line = walk.next(); isIn(line))
                lines.emplace_back(number, line);
        return lines;
    }

    void addDay(Place place, int row, std::string line) {
        found.push_back({place, table_.revision(row), 0, std::move(line)});
    }

    std::string dayLine(int row) const {
        std::string line = table_.Cell(row, DayTable::dateColumn) + ":";
        for (int column = DayTable::firstReading; column < DayTable::visibleColumns; ++column)
            if (!table_.Cell(row, column).empty())
                line += "  " + table_.Cell(row, column);
        return line;
    }

    const Listbox& table_;
    std::string sought_;
};

} // namespace

std::vector<Hit> hits(const Listbox& table, std::string_view sought) {
    if (sought.empty())
        return {};
    Seeker seeker(table, sought);
    seeker.lookInText(Place::journal, Globals::gJournal);
    seeker.lookInText(Place::food, withLineEnds(Globals::gFood));
    seeker.lookInText(Place::exercise, withLineEnds(Globals::gExercise));
    seeker.lookInText(Place::medication, withLineEnds(Globals::gMedication));
    seeker.lookInDetails();
    seeker.lookInTable();
    return std::move(seeker.found);
}

std::optional<int> rowOf(const Listbox& table, const Hit& hit) {
    for (int row = 0; row < table.ListCount(); ++row)
        if (table.revision(row) == hit.revision)
            return row;
    return std::nullopt;
}

std::string nameOf(Place place) {
    switch (place) {
    case Place::table:
        return tr("Day");
    case Place::details:
        return tr("Details");
    case Place::journal:
        return tr("Journal");
    case Place::food:
        return tr("Food log");
    case Place::exercise:
        return tr("Exercise log");
    case Place::medication:
        break;
    }
    return tr("Medication log");
}

} // namespace tallyvane::Search
