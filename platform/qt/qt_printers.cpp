#include "platform/qt/qt_printers.h"

#include <QDir>
#include <QPrintDialog>

#include "platform/base/translation.h"
#include "platform/qt/convert.h"
#include "platform/qt/print_job.h"
#include "platform/qt/qt_file_dialogs.h"

namespace tallyvane {

namespace {

/// Gives a PDF the ending that the user has not typed. False when a file of that name is to stay.
bool addPdfEnding(QPrinter& printer) {
    if (printer.outputFormat() != QPrinter::PdfFormat || printer.outputFileName().isEmpty())
        return true;
    const std::string typed = QFile::encodeName(printer.outputFileName()).toStdString();
    const std::string path = withEnding(typed, ".pdf");
    if (path != typed && !mayReplace(path)) // of the name as it was typed the dialog itself has asked
        return false;
    printer.setOutputFileName(QFile::decodeName(QByteArray::fromStdString(path)));
    return true;
}

} // namespace

std::unique_ptr<Paper> QtPrinters::makePaper() { return std::make_unique<QtPaper>(); }

std::unique_ptr<Graphics> QtPrinters::openDialog(const Paper* paper, int resolution, const std::string& pdfName) {
    std::unique_ptr<QPrinter> printer = makePrinter();
    if (const auto* chosen = dynamic_cast<const QtPaper*>(paper))
        printer->setPageLayout(chosen->layout());
    if (!pdfName.empty()) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QDir::home().filePath(toQt(withEnding(pdfName, ".pdf"))));
    }
    QPrintDialog dialog(printer.get()); // of no window, which might go while the dialog is open
    do
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
    while (!addPdfEnding(*printer));
    return PrintJob::begin(std::move(printer), resolution);
}

} // namespace tallyvane
