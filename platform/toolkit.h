#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/http_socket.h"
#include "platform/picture.h"
#include "platform/printing.h"
#include "platform/window.h"

namespace tallyvane {

/// To a question. None when the program was ended meanwhile.
enum class Answer { yes, no, none };

/// What the program asks of the desktop that it runs on. One is in force at a time; with none, windows work unseen
/// and messages go nowhere.
class Toolkit {
public:
    Toolkit() = default;
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;
    virtual ~Toolkit() = default;

    /// The peers of the window and of the controls in its table; the window owns the result.
    virtual std::unique_ptr<WindowPeer> show(Window& window) = 0;
    /// The bounds that a new window gets: its size, in the middle of its owner or of the screen.
    virtual Rect placeFor(const Window& window) = 0;
    /// Clear pixels, that many points wide and high, as fine as the desktop's screens.
    virtual std::shared_ptr<Bitmap> makeBitmap(int width, int height) = 0;
    /// A modal message with one button; returns when the user has pressed it.
    virtual void message(const std::string& text) = 0;
    /// A modal question with a button for each answer; Escape stands for one of them. The number of the answer, from 0;
    /// nothing when the program was ended meanwhile.
    virtual std::optional<std::size_t> ask(const std::string& question, const std::vector<std::string>& answers,
                                           std::size_t onEscape) = 0;
    virtual void beep() = 0;
    /// The absolute path that the user chose; "" when the dialog was cancelled.
    virtual std::string askWhereToSave(const SaveAsDialog& dialog) = 0;
    virtual std::string askForFile(const OpenDialog& dialog) = 0;
    virtual std::string askForFolder(const SelectFolderDialog& dialog) = 0;
    /// Paper as the printer has it.
    virtual std::unique_ptr<Paper> makePaper() = 0;
    /// The pages to print on, that many dots to an inch, after the print dialog; null when that was cancelled. `paper`
    /// can be null.
    virtual std::unique_ptr<Graphics> openPrinterDialog(const Paper* paper, int resolution, PrintTarget target) = 0;
    /// Starts to fetch the page of an "http" address into a file. `done` is called once with the server's status when
    /// the page has come whole, in time and in bounds, and never otherwise.
    virtual std::unique_ptr<Download> download(const std::string& address, const std::string& path,
                                               std::function<void(int status)> done) = 0;
    /// Hands an address to the desktop's default program for it. False when there is none.
    [[nodiscard]] virtual bool openUrl(const std::string& address) = 0;
    /// The same for a file that exists.
    [[nodiscard]] virtual bool openFile(const std::string& path) = 0;
    /// Ends the event loop with that exit code.
    virtual void quit(int code) = 0;

    /// Null when there is none.
    static Toolkit* inForce();
    /// The caller keeps the toolkit and takes it out of force before it goes.
    static void putInForce(Toolkit* toolkit);
};

/// A modal message with one button.
void MsgBox(const std::string& text);
/// A modal question with a button for each answer; Escape stands for one of them. The number of the answer, from 0;
/// nothing when the program was ended meanwhile, and where nobody can be asked.
[[nodiscard]] std::optional<std::size_t> Ask(const std::string& question, const std::vector<std::string>& answers,
                                             std::size_t onEscape);
/// A modal question with two answers. Escape gives the second.
[[nodiscard]] Answer Ask(const std::string& question, const std::string& yes, const std::string& no);
/// The system sound.
void Beep();
/// Hands a "http:", "https:" or "mailto:" address to the desktop, and a text that begins with "www" as one of "http:".
/// A message tells of any other text, and of an address that the desktop has no program for.
void ShowURL(const std::string& address);
/// The same for an e-mail address, with "mailto:" before it or without.
void ShowMail(const std::string& address);
/// Closes every window that is still open and ends the program. A window that could not be saved does not keep it from
/// ending: what it had to save is settled by `beforeEnd`.
void Quit(int code);
/// Called by Quit when all windows have been closed, with the exit code; gives the code to end with. The shell sets it.
inline std::function<int(int code)> beforeEnd;

} // namespace tallyvane
