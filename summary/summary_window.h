#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/files/folder_item.h"
#include "platform/printing/printing.h"
#include "platform/windows/window.h"
#include "summary/course_chart.h"
#include "summary/period_summary.h"

namespace tallyvane {

/// What the readings of a period say: figures, pictures, and a page for the visit at the doctor's.
class SummaryWindow : public Window {
public:
    /// The days' table, which must outlive the window.
    explicit SummaryWindow(const Listbox& days);

    GroupBox GroupBox1; // the period
    std::array<RadioButton, 9> Periods; // in the order of Summary::Span
    StaticText StaticText1; // the period and on what the figures rest
    LinkLine LinkLine1; // readings that could not be read
    TabPanel TabPanel1;
    Canvas Canvas1; // the first figures
    Listbox ListBox1; // all figures but the ranges
    Listbox ListBox2; // the ranges
    TextArea TextArea2; // what stands out, and the weight
    Canvas Canvas2; // the course
    StaticText StaticText3; // the reading under the pointer
    Canvas Canvas3, Canvas4, Canvas5; // the day, the shares, the rises
    StaticText StaticText4, StaticText5, StaticText6; // their titles
    StaticText StaticText7, StaticText8; // labels of the two fields
    TextField TextField1; // name of the patient
    TextArea TextArea1; // what I want to ask
    CheckBox CheckBox1; // pages of days
    PushButton PushButton1, PushButton2, PushButton3; // preview, PDF, export
    Timer Timer1; // a change of the days is followed once it is over

    /// Selects rows of the table and brings them into view.
    std::function<void(const std::vector<bool>& rows)> selectRows;

    void Event_Open() override;
    void Event_Close() override;
    /// The texts of the page.
    void saveTexts();
    /// The days, the selection or the limits have changed.
    void daysChanged();

    void PushButton1_Action();
    void PushButton2_Action();
    void PushButton3_Action();

    const Summary::PeriodSummary& summary() const { return summary_; }

private:
    void layOut();
    void build();
    void wire();
    void update();
    Summary::Span span() const;
    void showFigures();
    void paintCourse(Graphics& g);
    void showReadingAt(int x, int y);
    void selectReadingAt(int x, int y);
    void selectAll(const std::vector<int>& rows);
    static const Paper* paper();
    static void write(const FolderItem& file, const std::string& content);
    void drawPages(Graphics& g) const;

    const Listbox& days_;
    Summary::PeriodSummary summary_;
    std::unique_ptr<Summary::CourseChart> course_;
    std::optional<Picture> finishedCourse_; // as it is drawn at the canvas's size
};

} // namespace tallyvane
