#pragma once

#include "platform/printing/printing.h"

namespace tallyvane {

class QtPrinters : public Printers {
public:
    std::unique_ptr<Paper> makePaper() override;
    std::unique_ptr<Graphics> openDialog(const Paper* paper, int resolution, const std::string& pdfName) override;
};

} // namespace tallyvane
