#pragma once

#include <functional>

#include "diary/search.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// Looks for a text in the whole diary, and leads to where it stands.
class FindWindow : public Window {
public:
    /// The table of days must outlive the window.
    explicit FindWindow(const Listbox& table);

    TextField EditField1; // what is sought
    PushButton PushButton1, PushButton2; // Find, Close
    Listbox ListBox1{2}; // where, and the line
    StaticText StaticText1; // how many hits there are

    /// Shows a hit in its place; false when it is not there any more.
    std::function<bool(const Search::Hit& hit)> goTo;

    /// Puts the focus where the text is typed, with what stands there selected.
    void startAnew();

    void ListBox1_Change();
    bool ListBox1_CellClick(int row);
    void ListBox1_DoubleClick();
    void PushButton1_Action();

private:
    void goToHit(int row);

    const Listbox& table_;
    std::string count_; // in words
    std::vector<Search::Hit> hits_;
};

} // namespace tallyvane
