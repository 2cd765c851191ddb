#include "platform/qt/print_job.h"

#include <QPageSetupDialog>

namespace tallyvane {

namespace {

QRect printableArea(const QPrinter& printer, int resolution) {
    return {QPoint(0, 0), printer.pageLayout().paintRectPixels(resolution).size()};
}

} // namespace

std::unique_ptr<QPrinter> makePrinter() {
    constexpr double quarterInch = 18; // points
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageMargins(QMarginsF(quarterInch, quarterInch, quarterInch, quarterInch), QPageLayout::Point);
    return printer;
}

bool QtPaper::ask() {
    const std::unique_ptr<QPrinter> printer = makePrinter();
    printer->setPageLayout(layout_);
    QPageSetupDialog dialog(printer.get());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    layout_ = printer->pageLayout();
    return true;
}

PrinterAndPainter::PrinterAndPainter(std::unique_ptr<QPrinter> ready, int resolution) : printer(std::move(ready)) {
    const auto dots = static_cast<double>(resolution);
    if (painter.begin(printer.get()))
        painter.scale(printer->logicalDpiX() / dots, printer->logicalDpiY() / dots);
}

PrintJob::PrintJob(std::unique_ptr<QPrinter> ready, int resolution)
    : PrinterAndPainter(std::move(ready), resolution),
      PainterGraphics(painter, *printer, printableArea(*printer, resolution)) {}

std::unique_ptr<PrintJob> PrintJob::begin(std::unique_ptr<QPrinter> printer, int resolution) {
    std::unique_ptr<PrintJob> job(new PrintJob(std::move(printer), resolution));
    return job->painter.isActive() ? std::move(job) : nullptr;
}

} // namespace tallyvane
