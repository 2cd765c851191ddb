#include "platform/desktop/desktop.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

#include "platform/base/translation.h"

namespace tallyvane {

namespace {

/// Whether a text begins so, in capitals or not; `beginning` has none.
bool startsWithoutCase(std::string_view text, std::string_view beginning) {
    const auto isSame = [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; };
    return text.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), text.begin(), [&](char b, char a) { return isSame(a, b); });
}

} // namespace

void MsgBox(const std::string& text) { Desktop::current().message(text); }

std::optional<std::size_t> Ask(const std::string& question, const std::vector<std::string>& answers,
                               std::size_t onEscape) {
    return Desktop::current().ask(question, answers, onEscape);
}

Answer Ask(const std::string& question, const std::string& yes, const std::string& no) {
    const std::optional<std::size_t> answer = Ask(question, {yes, no}, 1);
    if (!answer)
        return Answer::none;
    return *answer == 0 ? Answer::yes : Answer::no;
}

void Beep() { Desktop::current().beep(); }

void ShowURL(const std::string& address) {
    if (address.starts_with("www")) {
        ShowURL("http://" + address);
        return;
    }
    constexpr std::array<std::string_view, 3> schemes{"http:", "https:", "mailto:"};
    const auto startsIt = [&](std::string_view scheme) { return startsWithoutCase(address, scheme); };
    if (std::none_of(schemes.begin(), schemes.end(), startsIt))
        MsgBox(tr("\u201c%1\u201d can't be opened: it is neither a web nor an e-mail address.", {address}));
    else if (!Desktop::current().openUrl(address))
        MsgBox(tr("\u201c%1\u201d can't be opened: this desktop has no program for it.", {address}));
}

void ShowMail(const std::string& address) {
    constexpr std::string_view scheme = "mailto:";
    ShowURL(address.starts_with(scheme) ? address : std::string(scheme) + address);
}

} // namespace tallyvane
