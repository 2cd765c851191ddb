#include "big_table.h"

#include <malloc.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/base/text.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::bench {

namespace {

/// A folder that goes with the process.
struct ScratchFolder {
    ScratchFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / ("tallyvane-bench-" + std::string(6, 'X'))).string();
        path = ::mkdtemp(pattern.data());
    }
    ~ScratchFolder() { std::filesystem::remove_all(path); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path path;
};

const std::filesystem::path& scratch() {
    static const ScratchFolder folder;
    return folder.path;
}

std::string withDigit(const std::string& text) { return text.ends_with('.') ? text + '0' : text; }

} // namespace

std::string bigFile(int days) {
    std::mt19937 random(1991);
    const auto upTo = [&](unsigned most) { return static_cast<int>(random() % most); };
    std::string file;
    for (int day = 0; day < days; ++day) {
        file += Date(1950 + day / 336, day / 28 % 12 + 1, day % 28 + 1).ShortDate();
        for (int reading = 0; reading < 7; ++reading)
            file += "@#@" + (upTo(4) == 0 ? std::string() : Format(2 + upTo(200) / 10.0, "#.0"));
        file += "@#@@#@" + Str(150 + upTo(60)) + "@#@\n";
    }
    return file;
}

void settleFolder(const std::string& dayTable) {
    SpecialFolder::ApplicationData = GetFolderItem(scratch().string());
    std::filesystem::create_directory(scratch() / "Tallyvane");
    std::ofstream(scratch() / "Tallyvane" / "7VXData", std::ios::binary) << dayTable;
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
}

std::vector<std::string> plainAverages(Listbox& table) {
    using namespace DayTable;
    for (int row = 0; row < table.ListCount(); ++row) {
        double sum = 0;
        int count = 0;
        for (int column = firstReading; column <= lastReading; ++column) {
            const double value = Val(table.Cell(row, column));
            sum += value;
            count += value > 0 ? 1 : 0;
        }
        if (count == 0)
            continue;
        const std::string whole = Str(sum / count);
        table.Cell(row, averageColumn,
                   whole.find('.') == std::string::npos ? whole + ".0" : withDigit(Format(sum / count, "##.#")));
    }
    std::vector<std::string> strip;
    for (int column = firstReading; column <= weightColumn; ++column) {
        double sum = 0;
        int count = 0;
        for (int row = 0; row < table.ListCount(); ++row) {
            const double value = Val(table.Cell(row, column));
            if (value > 0) {
                sum += value;
                ++count;
            }
        }
        strip.push_back(sum > 0 ? withDigit(Format(sum / count, "##.#")) : "00.0");
    }
    return strip;
}

std::vector<std::vector<std::string>> plainRead() {
    std::ifstream file(scratch() / "Tallyvane" / "7VXData", std::ios::binary);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        std::vector<std::string>& row = rows.emplace_back();
        std::size_t start = 0;
        for (std::size_t at = line.find("@#@"); at != std::string::npos; at = line.find("@#@", start)) {
            row.push_back(line.substr(start, at - start));
            start = at + 3;
        }
        row.push_back(line.substr(start));
    }
    return rows;
}

std::size_t heapInUse() {
    const struct mallinfo2 heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

} // namespace tallyvane::bench
