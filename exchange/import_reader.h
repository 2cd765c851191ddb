#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/folder_item.h"

namespace tallyvane {

/// Reads a delimited text file as rows of ten cells, a slice of time at a go. A line becomes a row, its fields the
/// cells in their order, as they stand; missing ones are empty, those past the tenth are dropped. There is no quoting.
/// An empty file is one empty row.
class ImportReader {
public:
    using Row = std::vector<std::string>;
    using Milliseconds = std::chrono::milliseconds;

    /// A monotonic clock; tests replace it.
    static inline std::function<Milliseconds()> clock = [] {
        return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
    };

    /// Reads the whole file into memory. Null unless it is a regular file that can be read.
    [[nodiscard]] static std::unique_ptr<ImportReader> open(const FolderItem& file, std::string delimiter);

    /// Reads on for about so long, a few lines at the least. True when the file is at its end.
    bool readFor(Milliseconds time);
    /// The part of the file that has been read, 0 to 1.
    double progress() const;
    /// Hands over the rows that have been read so far.
    std::vector<Row> takeRows() { return std::move(rows_); }

private:
    ImportReader(std::string text, std::string delimiter);
    void readLine();

    std::size_t size_;
    TextInputStream stream_;
    std::string delimiter_;
    std::vector<Row> rows_;
    bool atEnd_ = false;
};

} // namespace tallyvane
