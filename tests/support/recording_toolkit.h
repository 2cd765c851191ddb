#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/drawing/graphics_recorder.h"
#include "platform/net/http_socket.h"
#include "platform/printing/printing.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// Paper with a printable area of that size, in points.
std::unique_ptr<Paper> paperOf(double width, double height);

/// A desktop without a screen: it keeps what the program asks of it.
class RecordingToolkit : public Desktop, public FileDialogs, public Printers, public Downloads, public WindowSystem {
public:
    RecordingToolkit();
    ~RecordingToolkit() override;

    Rect placeFor(const Window& window) override { return {400, 300, window.Width(), window.Height()}; }
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
    std::unique_ptr<Graphics> openDialog(const Paper* paper, int resolution, const std::string& pdfName) override;
    void preview(const Paper* paper, const std::string& title, const DrawPages& draw) override;
    std::string pdfOf(const Paper* paper, const PdfTexts& texts, const DrawPages& draw) override;
    std::unique_ptr<Download> start(const std::string& address, const std::string& path,
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
    std::vector<std::string> previews; // their titles
    std::vector<std::string> pdfs; // "title|author"
    std::vector<std::string> printDialogs; // that were shown, by the name of the PDF that they offered
    const Paper* paper = nullptr; // that was given to the last of them
    std::unique_ptr<Paper> printerPaper; // that the user chooses in the print dialog; null leaves what was given
    int beeps = 0;
};

} // namespace tallyvane
