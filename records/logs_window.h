#pragma once

#include <array>

#include "auto_button/auto_button.h"
#include "platform/windows/window.h"
#include "settings/globals.h"
#include "settings/log_record.h"

namespace tallyvane {

/// The running logs of food, exercise and medication, a page each, in a file of this window's own. Every way of closing
/// saves.
class logsWindow : public Window {
public:
    logsWindow();

    AutoButton AutoButton1, AutoButton2, AutoButton3; // date, print, save
    TabPanel TabPanel1;
    TextArea FoodFld, ExerciseFld, MedicationFld;
    PushButton PushButton1; // OK

    void Event_Open() override;
    void Event_Close() override { saveLogs(); }

    /// Loads the saved texts into fields and globals; without a file both stay as they are. The journal is not touched.
    void getLogs();
    void saveLogs();
    /// Shows the globals.
    void showGlobals() { show({Globals::gExercise, Globals::gFood, Globals::gJournal, Globals::gMedication}); }
    /// Joins the logs with what another program has made of their file.
    void bringInChanges();
    /// Saves if the texts have changed since they were read or saved.
    void saveChanged();
    void saveToDisk(const TextArea& field, const std::string& prompt);
    void printLog(const TextArea& field);

    /// Brings a log to the front, and a line of it into view, as TextArea::showLine does.
    enum class Log { food, exercise, medication };
    bool showLine(Log log, int number, const std::string& line);

    void AutoButton1_Action();
    void AutoButton2_Action();
    void AutoButton3_Action();
    void PushButton1_Action() { Close(); }

private:
    void show(const LogRecord& record);
    /// What belongs to a page of TabPanel1.
    struct Page {
        TextArea* field;
        std::string* log;
        std::string fileName; // suggested for saving
        std::string prompt;
    };
    std::array<Page, 3> pages();
    Page page() { return pages().at(static_cast<std::size_t>(TabPanel1.Value())); }
};

} // namespace tallyvane
