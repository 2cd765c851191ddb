#pragma once

#include <fstream>
#include <sstream>

#include "diary/day_table.h"
#include "diary/sort_keys.h"
#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

/// A table of days, and limits for readings in mg/dL.
class SummaryDesk : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        DayTable::setUp(table_);
        useMg();
    }
    static void useMg() {
        Globals::gOver = 180;
        Globals::gCaution = 140;
        Globals::gLow = 80;
        Globals::gUnder = 60;
    }
    static void useMmol() {
        Globals::gOver = 10;
        Globals::gCaution = 8;
        Globals::gLow = 4;
        Globals::gUnder = 3;
    }

    /// Adds a day: its readings, then its weight in column 9.
    void add(const std::string& date, const Texts& cells) {
        table_.AddRow(date);
        for (std::size_t i = 0; i < cells.size(); ++i)
            table_.Cell(table_.LastIndex(), static_cast<int>(i) + 1, cells[i]);
        SortKeys::rebuild(table_);
    }
    void addPatient(const char* name) {
        std::ifstream file(std::string(TEST_DATA "/") + name);
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            Texts cells(10);
            for (std::string& field : cells)
                std::getline(fields, field, ',');
            table_.AddRow(cells[0]);
            for (int column = 1; column <= 7; ++column)
                table_.Cell(table_.LastIndex(), column, cells[static_cast<std::size_t>(column)]);
        }
        SortKeys::rebuild(table_);
    }

    static constexpr int noon = 12 * 60 * 60;
    const Date today_{2026, 11, 22, noon}; // the desk's clock
};

} // namespace tallyvane
