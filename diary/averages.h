#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// The averages of the day table: each day's own in column 8, and one for each of the columns 1 to 9.
///
/// All cells are read as numbers once and remembered, so that a keystroke in a table of many years costs one row and
/// a walk over plain doubles. What is remembered of a row holds as long as the row at that place bears the revision
/// under which it was read; any write shows in it, and a row that has moved is found again by it. The sums are taken in
/// the order of the rows each time, so that they are the same to the last bit as if nothing were remembered.
class Averages {
public:
    static constexpr int columns = 9;

    /// The sum and the number of the values above 0 in a column.
    struct Sum {
        double sum = 0;
        int count = 0;
    };
    /// Of the columns 1 to 9, from place 0.
    using Sums = std::array<Sum, columns>;

    explicit Averages(Listbox& table) : table_(table) {}

    /// Writes each day's average into column 8: the sum of its seven readings by the number of those above 0. A day
    /// without such a reading keeps what stands there.
    void updateRows();

    /// Sums over all rows, or over the selected ones, of the numbers that the last updateRows read.
    Sums sumsOfAll() const;
    Sums sumsOfSelected() const;

    /// The figure of the summary strip for a column 1 to 9: "5.6", or "00.0" when there is nothing to average.
    static std::string stripText(int column, const Sum& sum);

private:
    struct RowNumbers {
        std::uint64_t revision = 0; // 0: nothing read yet
        std::array<double, columns> values{};
    };

    void moveWithRows();
    void updateRow(int row, RowNumbers& numbers);
    template <class Takes>
    Sums sums(Takes takes) const;

    Listbox& table_;
    std::vector<RowNumbers> rows_;
};

} // namespace tallyvane
