/// Messages and questions to the user, and what other programs of the desktop do for this one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/base/service.h"

namespace tallyvane {

/// The desktop that the program runs on.
class Desktop : public Service<Desktop> {
public:
    /// A modal message with one button; returns when the user has pressed it.
    virtual void message(const std::string& /*text*/) {}
    /// A modal question with a button for each answer; Escape stands for one of them. The number of the answer, from 0;
    /// nothing when the program was ended meanwhile, and where nobody can be asked.
    virtual std::optional<std::size_t> ask(const std::string& /*question*/, const std::vector<std::string>& /*answers*/,
                                           std::size_t /*onEscape*/) {
        return std::nullopt;
    }
    virtual void beep() {}
    /// Hands an address to the desktop's default program for it. False when there is none.
    [[nodiscard]] virtual bool openUrl(const std::string& /*address*/) { return true; }
    /// The same for a file that exists.
    [[nodiscard]] virtual bool openFile(const std::string& /*path*/) { return true; }
    /// Ends the event loop with that exit code.
    virtual void quit(int /*code*/) {}
};

/// To a question. None when the program was ended meanwhile.
enum class Answer { yes, no, none };

/// A modal message with one button.
void MsgBox(const std::string& text);
/// A modal question with a button for each answer, as Desktop::ask.
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

} // namespace tallyvane
