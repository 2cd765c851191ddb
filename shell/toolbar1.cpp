#include "shell/toolbar1.h"

#include "platform/base/translation.h"

namespace tallyvane {

Toolbar1::Toolbar1()
    : Toolbar({
          {"ResourcesBtn", tr("Resources"), tr("Show Resources window"), "folderpng_32x32.png"},
          {"HeadingsBtn", tr("Headings"), tr("Edit Headings"), "processpng_32x32.png"},
          {"ToolItem1", "", "", ""},
          {"LogsBtn", tr("Logs"), tr("Show Logs window"), "id_cardpng_32x32.png"},
          {"TeamMedBtn", tr("Team/Meds"), tr("Show Medical Team/Meds window"), "userspng_32x32.png"},
          {"GraphBtn", tr("Graph"), tr("Graph selected days"), "chartpng_32x32.png"},
          {"SummaryBtn", tr("Summary"), tr("What the readings say"), "summarypng_32x32.png"},
      }) {}

} // namespace tallyvane
