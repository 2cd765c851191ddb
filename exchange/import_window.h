#pragma once

#include <memory>
#include <string>

#include "exchange/import_reader.h"
#include "platform/window.h"

namespace tallyvane {

/// Asks for the format of a file of readings and for the file, and appends its rows to the day table as they stand.
/// A long file is read in slices behind a progress bar; the rows come into the table when all of them have been read.
class importWindow : public Window {
public:
    /// The days' table, which must outlive the window.
    explicit importWindow(Listbox& days);

    StaticText StaticText1;
    RadioButton RadioButton1, RadioButton2; // commas, tabs
    ProgressBar ProgressBar1;
    PushButton PushButton1, PushButton2; // OK, Cancel
    Timer Timer1; // reads on

    /// "comma" or "tab" until the import begins, the delimiter itself from then on.
    std::string theDelim;

    void Event_Open() override;
    void Event_Close() override;
    void RadioButton1_Action();
    void RadioButton2_Action();
    void PushButton1_Action();
    void Timer1_Action();

private:
    void readOn(ImportReader::Milliseconds time);
    void showProgress();

    Listbox& days_;
    std::unique_ptr<ImportReader> reader_; // of the import that is going on
};

} // namespace tallyvane
