#pragma once

#include <QPrinter>

#include <memory>

#include "platform/qt/painter_graphics.h"

namespace tallyvane {

/// A printer with its painter, which counts in points.
struct PrinterAndPainter {
    explicit PrinterAndPainter(std::unique_ptr<QPrinter> ready);

    std::unique_ptr<QPrinter> printer;
    QPainter painter;
};

/// The pages of one print: the printable area of the paper. They go to the printer when the job goes.
class PrintJob : private PrinterAndPainter, public PainterGraphics {
public:
    /// Nil when the printer takes nothing, such as a file that can't be written.
    static std::unique_ptr<PrintJob> begin(std::unique_ptr<QPrinter> printer);

    void NextPage() override { printer->newPage(); }

private:
    explicit PrintJob(std::unique_ptr<QPrinter> ready);
};

} // namespace tallyvane
