#pragma once

#include <chrono>

#include "platform/toolkit.h"

class QNetworkAccessManager;

namespace tallyvane {

/// The toolkit on Qt. It is in force from its making to its end, which both lie inside the life of a QApplication.
class QtToolkit : public Toolkit {
public:
    QtToolkit();
    ~QtToolkit() override;

    std::unique_ptr<WindowPeer> show(Window& window) override;
    Rect placeFor(const Window& window) override;
    std::shared_ptr<Bitmap> makeBitmap(int width, int height) override;
    void message(const std::string& text) override;
    std::optional<std::size_t> ask(const std::string& question, const std::vector<std::string>& answers,
                                   std::size_t onEscape) override;
    void beep() override;
    std::string askWhereToSave(const SaveAsDialog& dialog) override;
    std::string askForFile(const OpenDialog& dialog) override;
    std::string askForFolder(const SelectFolderDialog& dialog) override;
    std::unique_ptr<Paper> makePaper() override;
    std::unique_ptr<Graphics> openPrinterDialog(const Paper* paper, int resolution, PrintTarget target) override;
    std::unique_ptr<Download> download(const std::string& address, const std::string& path,
                                       std::function<void(int status)> done) override;
    bool openUrl(const std::string& address) override;
    bool openFile(const std::string& path) override;
    void quit(int code) override;

    /// Of a whole download.
    std::chrono::milliseconds timeLimit{30'000};

    bool quitAsked() const { return quitAsked_; }
    int quitCode() const { return quitCode_; }

private:
    std::unique_ptr<QNetworkAccessManager> network_; // null until it is needed
    bool quitAsked_ = false;
    int quitCode_ = 0;
};

} // namespace tallyvane
