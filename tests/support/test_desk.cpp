#include "support/test_desk.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

namespace {

// Letter paper with quarter-inch margins
constexpr double letterWidth = 576;
constexpr double letterHeight = 756;
constexpr double pointsAnInch = 72;

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
        : GraphicsRecorder(width * resolution / pointsAnInch, height * resolution / pointsAnInch), printed_(printed),
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

std::unique_ptr<Paper> paperOf(double width, double height) {
    static const bool isAccepted = true;
    return std::make_unique<RecordedPaper>(width, height, isAccepted);
}

std::unique_ptr<Paper> RecordingToolkit::makePaper() {
    return nextPaper ? nextPaper() : std::make_unique<RecordedPaper>(letterWidth, letterHeight, pageSetupReady);
}

std::unique_ptr<Graphics> RecordingToolkit::openPrinterDialog(const Paper* chosen, int resolution, PrintTarget target) {
    paper = chosen;
    printDialogs.push_back(target);
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

void TestDesk::SetUp() {
    std::string pattern = (std::filesystem::temp_directory_path() / ("tallyvane-test-" + std::string(6, 'X'))).string();
    folder_ = ::mkdtemp(pattern.data());
    SpecialFolder::ApplicationData = GetFolderItem(folder_.string());
    SpecialFolder::UserHome = GetFolderItem(folder_.string());
    SpecialFolder::Temporary = GetFolderItem(folder_.string());
    SpecialFolder::State = GetFolderItem((folder_ / "state").string());
    UnsavedFiles::forgetAll();
    StartupGlobals::gDataFolder.reset();
    StartupGlobals::gMissingDataFolder.clear();
    PrefsModule::gDataLocation.clear();
    Globals::gOver = 13.0;
    Globals::gCaution = 9.0;
    Globals::gLow = 5.0;
    Globals::gUnder = 3.0;
    Globals::gShowIndicators = true;
    Globals::gIncludeMeds = Globals::gIncludeExercise = Globals::gIncludeFood = false;
    for (std::string* log : {&Globals::gExercise, &Globals::gFood, &Globals::gJournal, &Globals::gMedication})
        log->clear();
    Globals::gFileWindowOpen = Globals::gFilesOpen = Globals::gPrintingOn = false;
    Globals::ps.reset();
    DateSource::setShortPattern("M/d/yyyy");
    DateSource::now = [] { return Date(2026, 11, 22, 12 * 3600); };
}

void TestDesk::TearDown() { std::filesystem::remove_all(folder_); }

void TestDesk::write(const std::filesystem::path& path, const std::string& content) const {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string TestDesk::read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path << " can't be read";
    return {std::istreambuf_iterator<char>(file), {}};
}

void DiaryDesk::SetUp() {
    TestDesk::SetUp();
    makeApplicationFolder();
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
}

Window1& DiaryDesk::open() {
    window1_.Open();
    return window1_;
}

Texts DiaryDesk::strip() const {
    const Window1& w = window1_;
    Texts texts;
    for (const StaticText* label : {&w.StaticText1, &w.StaticText2, &w.StaticText3, &w.StaticText4, &w.StaticText5,
                                    &w.StaticText6, &w.StaticText23, &w.StaticText22, &w.StaticText16})
        texts.push_back(label->Text());
    return texts;
}

} // namespace tallyvane
