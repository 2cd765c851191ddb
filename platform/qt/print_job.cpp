#include "platform/qt/print_job.h"

#include <QPageSetupDialog>

namespace tallyvane {

namespace {

constexpr double pointsAnInch = 72;

QRect printableArea(const QPrinter& printer) {
    const QRectF area = printer.pageLayout().paintRect(QPageLayout::Point);
    return {0, 0, static_cast<int>(area.width()), static_cast<int>(area.height())};
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

PrinterAndPainter::PrinterAndPainter(std::unique_ptr<QPrinter> ready) : printer(std::move(ready)) {
    if (painter.begin(printer.get()))
        painter.scale(printer->logicalDpiX() / pointsAnInch, printer->logicalDpiY() / pointsAnInch);
}

PrintJob::PrintJob(std::unique_ptr<QPrinter> ready)
    : PrinterAndPainter(std::move(ready)), PainterGraphics(painter, *printer, printableArea(*printer)) {}

std::unique_ptr<PrintJob> PrintJob::begin(std::unique_ptr<QPrinter> printer) {
    std::unique_ptr<PrintJob> job(new PrintJob(std::move(printer)));
    return job->painter.isActive() ? std::move(job) : nullptr;
}

} // namespace tallyvane
