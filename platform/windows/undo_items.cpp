#include "platform/windows/undo_items.h"

#include "platform/base/text.h"
#include "platform/base/translation.h"

namespace tallyvane {

namespace {

/// A name as a menu shows it: not longer than it can be read there, and without access keys of its own.
std::string shown(const std::string& name) {
    constexpr int mostCharacters = 60;
    const std::string text = Len(name) > mostCharacters ? Left(name, mostCharacters) + "\u2026" : name;
    return ReplaceAll(text, "&", "&&");
}

} // namespace

void handleUndoItems(MenuTarget& window, std::function<ListHistory&()> history, std::function<void()> afterwards) {
    const auto handler = [=](void (ListHistory::*step)()) {
        return [=] {
            (history().*step)();
            afterwards();
        };
    };
    window.menuHandlers["EditUndo"] = handler(&ListHistory::undo);
    window.menuHandlers["EditRedo"] = handler(&ListHistory::redo);
}

void enableUndoItems(MenuBar& menuBar, const ListHistory& history) {
    if (history.canUndo())
        menuBar.enable("EditUndo", tr("&Undo %1", {shown(history.undoName())}));
    if (history.canRedo())
        menuBar.enable("EditRedo", tr("&Redo %1", {shown(history.redoName())}));
}

} // namespace tallyvane
