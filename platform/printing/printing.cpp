#include "platform/printing/printing.h"

#include <algorithm>
#include <cmath>

#include "platform/base/text.h"
#include "platform/drawing/wrapped_text.h"

namespace tallyvane {

int PrinterSetup::HorizontalResolution() const {
    int resolution = paper_->resolution();
    for (const int most : {MaxHorizontalResolution, MaxVerticalResolution})
        if (most >= 0)
            resolution = std::min(resolution, most);
    return resolution;
}

std::unique_ptr<Graphics> OpenPrinterDialog(const PrinterSetup* setup, const std::string& pdfName) {
    const Paper* paper = setup == nullptr ? nullptr : setup->paper();
    const int resolution = setup == nullptr ? pointsPerInch : setup->HorizontalResolution();
    return Printers::current().openDialog(paper, resolution, pdfName);
}

std::unique_ptr<Graphics> askForPages(PrinterSetup& setup) {
    return setup.PageSetupDialog() ? OpenPrinterDialog(&setup) : nullptr;
}

void StyledTextPrinter::DrawBlock(double x, double y, double height) {
    constexpr double textSize = 12;
    g_.TextFont("System");
    g_.TextSize(textSize);
    g_.ForeColor(RGB(0, 0, 0));
    const double lineHeight = g_.TextHeight();
    const int lines = std::max(1, static_cast<int>(std::floor(height / lineHeight)));
    for (int i = 0; i < lines && !EndOfText(); ++i) {
        const std::string_view rest = std::string_view(text_).substr(place_);
        const std::size_t length = firstLine(g_, rest, width_);
        g_.DrawString(ReplaceAll(rest.substr(0, length), EndOfLine, ""), x, y + g_.TextAscent() + i * lineHeight);
        place_ += length;
    }
}

} // namespace tallyvane
