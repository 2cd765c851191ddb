#pragma once

#include <string>

#include "diary/window1.h"
#include "platform/printing/printing.h"
#include "reports/report_page.h"

namespace tallyvane {

/// The number of lines that a text will take in lines of that width: an estimate from the widths of its paragraphs,
/// not from real wrapping. A line for an empty paragraph.
int countLines2(const std::string& text, double width, const Graphics& g);

/// The report of the diary on paper: a line for each day, its details as the preferences ask, and the averages.
class DiaryReport {
public:
    /// The main window, which must outlive the report. It keeps the details of the day that was printed last.
    explicit DiaryReport(Window1& diary) : diary_(diary) {}

    /// Prints all days on the paper of the page set-up, which is made if there is none yet. The print dialog offers a
    /// PDF file of that name, or a printer without one; nothing is printed when it is cancelled.
    void PrintAll(const std::string& pdfName = "");

    void FilePrint_Action();
    /// Prints the selected days. True when the print dialog was cancelled.
    bool FilePrintSelected_Action();
    /// Prints all days, into a PDF file if the user leaves the dialog as it comes.
    void FileSaveAsPDF_Action();

private:
    enum class Days { all, selected };

    void print(Graphics& g, const std::string& title, double height, Days days);
    void printDetails(ReportPage& page, const Graphics& g);
    ReportPage::Cells cellsOf(int row) const;
    ReportPage::Cells averages() const;

    Window1& diary_;
};

/// Asks for a page set-up, and keeps it for all reports of this run unless the user cancels.
void FilePrintSetup_Action();

} // namespace tallyvane
