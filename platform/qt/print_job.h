#pragma once

#include <QPageLayout>
#include <QPrinter>

#include <memory>

#include "platform/printing/printing.h"
#include "platform/qt/painter_graphics.h"

namespace tallyvane {

/// The printer that the desktop prefers, with margins of a quarter of an inch.
std::unique_ptr<QPrinter> makePrinter();

/// Paper that Qt's page set-up dialog sets up.
class QtPaper : public Paper {
public:
    QtPaper() : layout_(makePrinter()->pageLayout()) {}

    double width() const override { return layout_.paintRect(QPageLayout::Point).width(); }
    double height() const override { return layout_.paintRect(QPageLayout::Point).height(); }
    /// Units per inch, not the printer's real resolution, at which everything is drawn. 96, since distances fixed in
    /// units, such as 20 between a chart's ticks, must stay readable.
    int resolution() const override { return 96; }
    bool ask() override;

    const QPageLayout& layout() const { return layout_; }

private:
    QPageLayout layout_;
};

/// A printer with its painter, which counts in dots of the resolution: that many to an inch.
struct PrinterAndPainter {
    PrinterAndPainter(std::unique_ptr<QPrinter> ready, int resolution);

    std::unique_ptr<QPrinter> printer;
    QPainter painter;
};

/// The pages of one print: the printable area of the paper. They go to the printer when the job goes.
class PrintJob : private PrinterAndPainter, public PainterGraphics {
public:
    /// Null when the printer takes nothing, such as a file that can't be written.
    static std::unique_ptr<PrintJob> begin(std::unique_ptr<QPrinter> printer, int resolution);

    void NextPage() override { printer->newPage(); }

private:
    PrintJob(std::unique_ptr<QPrinter> ready, int resolution);
};

} // namespace tallyvane
