#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls/control.h"

namespace tallyvane {

/// A line of text for the user, with links behind it that can be pressed.
class LinkLine : public Control {
public:
    struct Link {
        std::string Caption;
        std::function<void()> Action;
    };

    const std::string& Text() const { return text_; }
    const std::vector<Link>& links() const { return links_; }
    void show(std::string text, std::vector<Link> links = {}) {
        const auto sameCaption = [](const Link& a, const Link& b) { return a.Caption == b.Caption; };
        const bool isShown =
            text == text_ && std::equal(links.begin(), links.end(), links_.begin(), links_.end(), sameCaption);
        text_ = std::move(text);
        links_ = std::move(links);
        if (!isShown)
            changed(Property::text);
    }
    /// The user has pressed a link of the line; one that is not there any more does nothing.
    void userPressed(std::size_t link) {
        if (link >= links_.size())
            return;
        const std::function<void()> action = links_[link].Action; // it may show another line
        action();
    }

private:
    std::string text_;
    std::vector<Link> links_;
};

} // namespace tallyvane
