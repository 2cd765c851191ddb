#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/folder_item.h"
#include "platform/graphics_recorder.h"
#include "platform/toolkit.h"
#include "shell/app.h"
#include "support/cells.h"

namespace tallyvane {

/// Paper with a printable area of that size, in points.
std::unique_ptr<Paper> paperOf(double width, double height);

/// A desktop without a screen: it keeps what the program asks of it.
class RecordingToolkit : public Toolkit {
public:
    RecordingToolkit() { putInForce(this); }
    ~RecordingToolkit() override { putInForce(nullptr); }

    std::unique_ptr<WindowPeer> show(Window& /*window*/) override { return nullptr; }
    Rect placeFor(const Window& window) override { return {400, 300, window.Width(), window.Height()}; }
    std::shared_ptr<Bitmap> makeBitmap(int width, int height) override {
        return std::make_shared<RecordedBitmap>(width, height);
    }
    void message(const std::string& text) override { messages.push_back(text); }
    std::optional<std::size_t> ask(const std::string& question, const std::vector<std::string>& /*answers*/,
                                   std::size_t /*onEscape*/) override {
        questions.push_back(question);
        if (onQuestion)
            onQuestion();
        if (answers.empty())
            return std::nullopt;
        const std::optional<std::size_t> given = answers.front();
        answers.erase(answers.begin());
        return given;
    }
    void beep() override { ++beeps; }
    std::string askWhereToSave(const SaveAsDialog& dialog) override {
        dialogs.push_back(dialog.Title + "|" + dialog.PromptText + "|" + dialog.SuggestedFileName);
        return answer;
    }
    std::string askForFile(const OpenDialog& dialog) override {
        dialogs.push_back(dialog.Title + "|" + dialog.Filter);
        return answer;
    }
    std::string askForFolder(const SelectFolderDialog& dialog) override {
        dialogs.push_back(dialog.Title);
        return answer;
    }
    std::unique_ptr<Paper> makePaper() override;
    std::unique_ptr<Graphics> openPrinterDialog(const Paper* paper, int resolution, PrintTarget target) override;
    std::unique_ptr<Download> download(const std::string& address, const std::string& path,
                                       std::function<void(int status)> done) override {
        downloads.push_back({address, path, std::move(done)});
        return nullptr;
    }
    bool openUrl(const std::string& address) override {
        addresses.push_back(address);
        return true;
    }
    bool openFile(const std::string& path) override {
        files.push_back(path);
        return true;
    }
    void quit(int code) override { quits.push_back(code); }

    /// In what was printed.
    long pageBreaks() const;

    std::vector<std::string> messages;
    struct Started {
        std::string address;
        std::string path;
        std::function<void(int status)> done;
    };
    std::vector<Started> downloads;
    std::vector<std::string> addresses;
    std::vector<std::string> files;
    std::vector<int> quits;
    std::vector<std::string> dialogs;
    std::vector<std::string> questions;
    std::function<void()> onQuestion; // before it is answered
    std::vector<std::optional<std::size_t>>
        answers; // to the questions that come; after them the program is being ended
    std::string answer; // the path that the user chooses; "" cancels
    bool pageSetupReady = true; // false: the user cancels the page set-up
    bool printerReady = true; // false: the user cancels the print dialog
    std::vector<GraphicsRecorder::Call> printed; // on all pages
    struct PageSize {
        double width = 0;
        double height = 0;
    };
    PageSize lastPage; // in the units that it had at its end
    std::function<std::unique_ptr<Paper>()> nextPaper; // in place of the usual letter paper
    std::vector<PrintTarget> printDialogs; // that were shown
    const Paper* paper = nullptr; // that was given to the last of them
    std::unique_ptr<Paper> printerPaper; // that the user chooses in the print dialog; null leaves what was given
    int beeps = 0;
};

/// Gives each test a desktop of its own: a new folder for application data, the globals as at a first start, and
/// noon of 22 November 2026.
class TestDesk : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Path of a file in the application's folder.
    std::filesystem::path applicationFile(const std::string& name) const { return folder_ / "Tallyvane" / name; }
    void makeApplicationFolder() const { std::filesystem::create_directory(folder_ / "Tallyvane"); }
    void write(const std::filesystem::path& path, const std::string& content) const;
    static std::string read(const std::filesystem::path& path);

    std::filesystem::path folder_;
    RecordingToolkit toolkit_;
};

/// The main window with nothing around it, on the files that the test has laid out.
class DiaryDesk : public TestDesk {
protected:
    void SetUp() override;
    /// Brings the main window into being; the data folder is the application's.
    Window1& open();
    /// The texts below the table, from the first reading to the weight.
    Texts strip() const;

    Toolbar toolbar_{{}};
    MenuBar menuBar_{{}};
    Window1 window1_{toolbar_, menuBar_};
    Listbox& table_ = window1_.ListBox1;
};

} // namespace tallyvane
