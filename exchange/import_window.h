#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/import_reader.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// Asks for the format of a file of readings and for the file, and appends its rows to the day table as they stand.
/// A long file is read in slices behind a progress bar; the rows come into the table when all of them have been read.
/// They are then selected and in view.
class importWindow : public Window {
public:
    /// The days' table, which must outlive the window.
    explicit importWindow(Listbox& days);

    StaticText StaticText1;
    StaticText StaticText2; // the file that is offered
    RadioButton RadioButton1, RadioButton2; // commas, tabs
    ProgressBar ProgressBar1;
    PushButton PushButton1, PushButton2; // OK, Cancel
    Timer Timer1; // reads on

    /// "comma" or "tab" until the import begins, the delimiter itself from then on.
    std::string theDelim;

    /// Takes a file for the import, so that the user need not choose it.
    void offer(const FolderItem& file);
    /// Whether an import is going on.
    bool isReading() const { return reader_ != nullptr; }

    void Event_Open() override;
    void Event_Close() override;
    void RadioButton1_Action();
    void RadioButton2_Action();
    void PushButton1_Action();
    void Timer1_Action();

private:
    void continueReading(ImportReader::Milliseconds time);
    void appendRows(std::vector<ImportReader::Row> rows);
    void showProgress();

    Listbox& days_;
    std::optional<FolderItem> offered_;
    std::unique_ptr<ImportReader> reader_; // of the import that is going on
};

} // namespace tallyvane
