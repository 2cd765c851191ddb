/// What the fuzz targets share: a folder in memory for the user's files, and the law that every reader keeps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyvane::Fuzz {

/// The input as text.
inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The path of a file in the application's folder, which is new for each process and also the data folder.
std::string path(std::string_view name);
void write(std::string_view name, const std::string& content);
std::string read(std::string_view name);

/// Ends the process with both texts on a difference.
void expectEqual(const std::string& want, const std::string& got, const char* what);

/// What was read from any bytes and written again reads the same, and is then written the same. `load` reads the file
/// anew and tells all that it has read, or nothing when it holds what the file can't keep apart; `save` writes that.
void checkReader(std::string_view name, const std::string& content,
                 const std::function<std::optional<std::string>()>& load, const std::function<void()>& save);

/// Files quote nothing: a field that ends with the beginning of a separator runs into it.
inline bool runsIntoSeparator(const std::string& field) { return field.ends_with("@#"); }

/// Cells, each with its length, so that no two tables tell the same.
template <class List>
std::optional<std::string> told(const List& list, int columns) {
    std::string all;
    for (int row = 0; row < list.ListCount(); ++row)
        for (int column = 0; column < columns; ++column) {
            const std::string& cell = list.Cell(row, column);
            if (runsIntoSeparator(cell))
                return std::nullopt;
            all += std::to_string(cell.size()) + ":" + cell + (column + 1 < columns ? "|" : "\n");
        }
    return all;
}

} // namespace tallyvane::Fuzz
