#include "shell/toolbar1.h"

namespace tallyvane {

Toolbar1::Toolbar1()
    : Toolbar({
          {"ResourcesBtn", "Resources", "Show Resources window", "folderpng_32x32.png"},
          {"HeadingsBtn", "Headings", "Edit Headings", "processpng_32x32.png"},
          {"ToolItem1", "", "", ""},
          {"LogsBtn", "Logs", "Show Logs window", "id_cardpng_32x32.png"},
          {"TeamMedBtn", "Team/Meds", "Show Medical Team/Meds window", "userspng_32x32.png"},
          {"GraphBtn", "Graph", "Graph selected days", "chartpng_32x32.png"},
      }) {}

} // namespace tallyvane
