#include "diary/window1.h"
#include "platform/base/text.h"
#include "records/logs_window.h"
#include "shell/app.h"
#include "shell/toolbar1.h"
#include "support/pseudo_locale.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class TranslationTest : public TestDesk {
protected:
    void expectNone(const std::vector<std::string>& shown) {
        EXPECT_FALSE(shown.empty());
        for (const std::string& text : shown)
            EXPECT_EQ(PseudoLocale::untranslated(text), "") << text;
    }
    static std::vector<std::string> texts(const std::vector<GraphicsRecorder::Call>& calls) {
        std::vector<std::string> all;
        for (const GraphicsRecorder::Call& call : calls) {
            all.push_back(call.text);
            for (const Object2D& shape : call.shapes)
                if (const auto* text = std::get_if<StringShape>(&shape))
                    all.push_back(text->Text);
        }
        return all;
    }

    PseudoLocale pseudo_;
};

TEST_F(TranslationTest, ValuesAreFilledInOnceWhereTheLanguageWantsThem) {
    Translation::lookup = [](std::string_view) { return "%2: %1 (100 %, %3)"; };
    EXPECT_EQ(tr("%1 of %2", {"%2", "b"}), "b: %2 (100 %, %3)");
}

TEST_F(TranslationTest, MessagesAndDialogsAreTranslated) {
    makeApplicationFolder();
    write(applicationFile("Brindlemarks Preferences"), "true\n13\n9\n5\n3\n\n\n\n/no/such/folder\n");
    App app;
    app.Event_Open();
    app.windows().splash->Timer1.fire();
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_EQ(toolkit_.messages[0].find("{The folder with your days is not there: \u201c/no/such/folder"), 0U);
    toolkit_.messages.clear();

    Window1& window = *app.windows().main;
    for (const char* item : {"FileArchiveSelectedDays", "FileSaveAsPDF", "FileOpenArchivedDays"})
        app.menuBar.choose(item, &window);
    app.run([] { throw 1; });
    expectNone(toolkit_.messages);
    EXPECT_EQ(toolkit_.messages.size(), 3U);

    window.AutoButton15_Action();
    logsWindow logs;
    logs.AutoButton3.Action();
    ASSERT_EQ(toolkit_.dialogs.size(), 3U);
    for (const std::string& dialog : toolkit_.dialogs) // its title and, of one for saving, its prompt
        for (int field = 1; field < CountFields(dialog, "|"); ++field)
            EXPECT_EQ(NthField(dialog, "|", field)[0], '{') << dialog;
}

TEST_F(TranslationTest, MenusToolbarAndPaperAreTranslated) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n");
    App app;
    app.Event_Open();
    app.windows().splash->Timer1.fire();
    std::vector<std::string> shown;
    for (const Menu& menu : app.menuBar.menus()) {
        shown.push_back(menu.Text);
        for (const MenuItem& item : menu.items)
            shown.push_back(item.Text);
    }
    const Toolbar1 toolbar;
    for (const ToolItem& item : toolbar.items())
        shown.insert(shown.end(), {item.Caption, item.HelpTag});
    app.menuBar.choose("FilePrint", app.windows().main.get());
    app.windows().main->ListBox1.select({true});
    app.windows().main->showGraph();
    Window* graph = Window::openWindows().back();
    EXPECT_EQ(graph->Title(), "{Graph}");
    app.menuBar.choose("FilePrint", graph);
    const std::vector<std::string> printed = texts(toolkit_.printed);
    shown.insert(shown.end(), printed.begin(), printed.end());
    expectNone(shown);
}

} // namespace

} // namespace tallyvane
