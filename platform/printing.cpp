#include "platform/printing.h"

#include <algorithm>
#include <cmath>

#include "platform/text.h"
#include "platform/toolkit.h"
#include "platform/wrapped_text.h"

namespace tallyvane {

PrinterSetup::PrinterSetup() {
    if (Toolkit* toolkit = Toolkit::inForce())
        paper_ = toolkit->makePaper();
}

int PrinterSetup::HorizontalResolution() const {
    int resolution = paper_ ? paper_->resolution() : pointsAnInch;
    for (const int most : {MaxHorizontalResolution, MaxVerticalResolution})
        if (most >= 0)
            resolution = std::min(resolution, most);
    return resolution;
}

std::unique_ptr<Graphics> OpenPrinterDialog(const PrinterSetup* setup, PrintTarget target) {
    Toolkit* toolkit = Toolkit::inForce();
    if (toolkit == nullptr)
        return nullptr;
    return setup == nullptr ? toolkit->openPrinterDialog(nullptr, PrinterSetup::pointsAnInch, target)
                            : toolkit->openPrinterDialog(setup->paper(), setup->HorizontalResolution(), target);
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
