/// Printing. A page is a surface, the printable area of the paper, with its origin in the top left corner. It counts in
/// points, or in the dots of a finer resolution that the set-up allows.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/base/service.h"
#include "platform/drawing/graphics.h"

namespace tallyvane {

constexpr int pointsPerInch = 72;

/// The paper as the user has set it up. A plain one is none: nothing can be printed on it.
class Paper {
public:
    Paper() = default;
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;
    virtual ~Paper() = default;

    // Size of the printable area, in points
    virtual double width() const { return 0; }
    virtual double height() const { return 0; }
    /// Dots to an inch that a surface counts in at most.
    virtual int resolution() const { return pointsPerInch; }
    /// Shows the page set-up dialog. False when the user cancelled.
    virtual bool ask() { return false; }
};

/// Draws pages, one after the other by NextPage.
using DrawPages = std::function<void(Graphics& g)>;

/// What a PDF says of itself.
struct PdfTexts {
    std::string title;
    std::string author; // "" for none
};

/// What shows the dialogs of printing. The plain service prints nothing.
class Printers : public Service<Printers> {
public:
    /// Paper as the printer has it. Never null.
    virtual std::unique_ptr<Paper> makePaper() { return std::make_unique<Paper>(); }
    /// The pages to print on, that many dots to an inch, after the print dialog; null when that was cancelled. `paper`
    /// can be null. The dialog offers a printer first, or a PDF of that name; the user can choose another.
    virtual std::unique_ptr<Graphics> openDialog(const Paper* /*paper*/, int /*resolution*/,
                                                 const std::string& /*pdfName*/) {
        return nullptr;
    }
    /// Shows the pages as they will be, with zoom, and prints them if the user says so there. They count in points, and
    /// are drawn anew for each look, the first on the surface as it comes. `paper` can be null: then it is the
    /// printer's.
    virtual void preview(const Paper* /*paper*/, const std::string& /*title*/, const DrawPages& /*draw*/) {}
    /// The bytes of a PDF of them, on such paper; "" when it could not be made.
    [[nodiscard]] virtual std::string pdfOf(const Paper* /*paper*/, const PdfTexts& /*texts*/,
                                            const DrawPages& /*draw*/) {
        return {};
    }
};

/// A page set-up.
class PrinterSetup {
public:
    /// Of the printable area, in points; 0 where nothing can be printed.
    double Width() const { return paper_->width(); }
    double Height() const { return paper_->height(); }
    /// False when the user cancelled.
    [[nodiscard]] bool PageSetupDialog() { return paper_->ask(); }

    /// What the pages' resolution may be at most, in dots to an inch; -1 for that of the paper.
    int MaxHorizontalResolution = pointsPerInch;
    int MaxVerticalResolution = pointsPerInch;
    /// What it is, across and down alike.
    int HorizontalResolution() const;

    const Paper* paper() const { return paper_.get(); }

private:
    std::unique_ptr<Paper> paper_ = Printers::current().makePaper();
};

/// Shows the print dialog; without a set-up the paper is the printer's own, and counts in points. Null when the user
/// cancelled. The dialog offers a printer first, or a PDF of that name. What is drawn goes to paper when the surface is
/// destroyed.
[[nodiscard]] std::unique_ptr<Graphics> OpenPrinterDialog(const PrinterSetup* setup = nullptr,
                                                          const std::string& pdfName = "");

/// Shows the page set-up dialog, then the print dialog for that set-up. Null when the user cancelled one of them.
[[nodiscard]] std::unique_ptr<Graphics> askForPages(PrinterSetup& setup);

/// Lays a text out on one page after the other, in the desktop's own font at 12 points. Lines are broken between words;
/// a word that is wider than the page is broken where it must be.
class StyledTextPrinter {
public:
    StyledTextPrinter(Graphics& g, std::string text, double width) : g_(g), text_(std::move(text)), width_(width) {}

    double Width() const { return width_; }
    void Width(double points) { width_ = points; }
    /// Everything has been drawn. (Plain EOF is a macro of the C library.)
    bool EndOfText() const { return place_ >= text_.size(); }
    /// Draws as many of the lines that are left as go into that height, one at the least.
    void DrawBlock(double x, double y, double height);

private:
    Graphics& g_;
    std::string text_;
    double width_;
    std::size_t place_ = 0;
};

} // namespace tallyvane
