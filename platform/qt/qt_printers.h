#pragma once

#include "platform/printing/printing.h"

namespace tallyvane {

class QtPrinters : public Printers {
public:
    std::unique_ptr<Paper> makePaper() override;
    std::unique_ptr<Graphics> openDialog(const Paper* paper, int resolution, const std::string& pdfName) override;
    void preview(const Paper* paper, const std::string& title, const DrawPages& draw) override;
    [[nodiscard]] std::string pdfOf(const Paper* paper, const PdfTexts& texts, const DrawPages& draw) override;
};

} // namespace tallyvane
