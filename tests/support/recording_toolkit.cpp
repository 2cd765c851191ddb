#include "support/recording_toolkit.h"

#include <algorithm>

namespace tallyvane {

namespace {

// Letter paper with quarter-inch margins
constexpr double letterWidth = 576;
constexpr double letterHeight = 756;

class RecordedPaper : public Paper {
public:
    RecordedPaper(double width, double height, const bool& accepted)
        : width_(width), height_(height), accepted_(accepted) {}
    double width() const override { return width_; }
    double height() const override { return height_; }
    int resolution() const override { return 96; }
    bool ask() override { return accepted_; }

private:
    double width_;
    double height_;
    const bool& accepted_;
};

/// Pages that hand over what was drawn on them when they are done.
class RecordedPages : public GraphicsRecorder {
public:
    RecordedPages(std::vector<Call>& printed, RecordingToolkit::PageSize& size, double width, double height,
                  int resolution)
        : GraphicsRecorder(width * resolution / pointsPerInch, height * resolution / pointsPerInch), printed_(printed),
          size_(size) {}
    ~RecordedPages() override {
        printed_ = calls();
        size_ = {Width(), Height()};
    }

private:
    std::vector<Call>& printed_;
    RecordingToolkit::PageSize& size_;
};

} // namespace

RecordingToolkit::RecordingToolkit() {
    Desktop::use(this);
    FileDialogs::use(this);
    Printers::use(this);
    Downloads::use(this);
    WindowSystem::use(this);
}

RecordingToolkit::~RecordingToolkit() {
    Desktop::use(nullptr);
    FileDialogs::use(nullptr);
    Printers::use(nullptr);
    Downloads::use(nullptr);
    WindowSystem::use(nullptr);
}

std::unique_ptr<Paper> paperOf(double width, double height) {
    static const bool isAccepted = true;
    return std::make_unique<RecordedPaper>(width, height, isAccepted);
}

std::unique_ptr<Paper> RecordingToolkit::makePaper() {
    return nextPaper ? nextPaper() : std::make_unique<RecordedPaper>(letterWidth, letterHeight, pageSetupReady);
}

void RecordingToolkit::preview(const Paper* /*paper*/, const std::string& title, const DrawPages& draw) {
    previews.push_back(title);
    RecordedPages pages(printed, lastPage, letterWidth, letterHeight, pointsPerInch);
    draw(pages);
}

std::string RecordingToolkit::pdfOf(const Paper* /*paper*/, const PdfTexts& texts, const DrawPages& draw) {
    pdfs.push_back(texts.title + "|" + texts.author);
    RecordedPages pages(printed, lastPage, letterWidth, letterHeight, pointsPerInch);
    draw(pages);
    return printerReady ? "a PDF" : "";
}

std::unique_ptr<Graphics> RecordingToolkit::openDialog(const Paper* chosen, int resolution,
                                                       const std::string& pdfName) {
    paper = chosen;
    printDialogs.push_back(pdfName);
    if (!printerReady)
        return nullptr;
    const Paper* used = printerPaper ? printerPaper.get() : chosen;
    return std::make_unique<RecordedPages>(printed, lastPage, used != nullptr ? used->width() : letterWidth,
                                           used != nullptr ? used->height() : letterHeight, resolution);
}

long RecordingToolkit::pageBreaks() const {
    return std::count_if(printed.begin(), printed.end(),
                         [](const GraphicsRecorder::Call& call) { return call.operation == "NextPage"; });
}

} // namespace tallyvane
