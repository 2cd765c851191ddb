#pragma once

#include "auto_button/auto_button.h"
#include "platform/controls/list_history.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// The people of the care team and the medication schedule, each a list in a file of its own. Every way of closing
/// saves both.
class InfoWindow : public Window {
public:
    InfoWindow();

    TabPanel TabPanel1; // "Support Team Contacts", "Medication Schedule"
    Listbox ListBox1{5}; // the contacts: role, and unseen name, phone, e-mail address, address
    BevelButton BevelButton1, BevelButton2; // "+", "-"
    StaticText StaticText1, StaticText2, StaticText3, StaticText4; // labels of the details
    TextField EditField2, EditField3, EditField4; // name, phone, e-mail address
    TextArea EditField5; // address
    AutoButton Canvas2; // sends e-mail
    Listbox ListBox2{3}; // the medications
    AutoButton AutoButton3, AutoButton4; // add, remove
    AutoButton Canvas1; // prints the medications
    PushButton PushButton1; // OK

    /// While true, what changes in the details is not written to the list.
    bool ignoreIt = false;

    void Event_Open() override;
    void Event_Close() override;
    void Event_EnableMenuItems(MenuBar& menuBar) override;

    void getContacts();
    void getMeds();
    void saveContacts();
    void saveMeds();

    void ListBox1_Change();
    void ListBox2_Change();
    bool ListBox2_CellKeyDown(int row, int column, const std::string& key);
    void BevelButton1_Action();
    void BevelButton2_Action();
    void Canvas2_Action();
    void AutoButton3_Action();
    void AutoButton4_Action();
    void Canvas1_Action();
    void PushButton1_Action();

private:
    void saveBoth();
    void layOut();
    void build();
    void wire();
    void clearDetails();
    void storeDetail(int column, const std::string& text);
    void enableDetails(bool on);
    ListHistory& historyInFront();
    void showListsAnew();

    ListHistory contactHistory_{ListBox1};
    ListHistory medicationHistory_{ListBox2};
    int detailColumn_ = 0; // that the user is writing, in one step; 0 for none
};

} // namespace tallyvane
