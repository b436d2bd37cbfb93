#include "pages/guidance/frmHelp.h"

#include <algorithm>

#include "core/Identity.h"
#include "core/NumericFault.h"
#include "schematic/LadderPicture.h"
#include "shell/Session.h"

namespace quilm {

frmHelp::frmHelp(Session& session) : Page(session, PageId::Help, "Topologies") {
  // In the order of the letters "A" to "L".
  lstTopology.items = {"Capacitor-input lowpass",         "Inductor-input lowpass", "Nodal capacitor-coupled bandpass",
                       "Nodal inductor-coupled bandpass", "Shunt-input bandpass",   "Series-input bandpass",
                       "Mesh capacitor-coupled bandpass", "Cauer (only) bandpass",  "Capacitor-input highpass",
                       "Inductor-input highpass",         "Series-input bandstop",  "Shunt-input bandstop"};
  lstTopology.onClick = [this] {
    session_.identity.TopologyHelpCode = ToI16(lstTopology.selected);
    Draw();
  };
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = &cmdExit;
  cancelButton = &cmdExit;
}

void frmHelp::Load() {
  const i32 last = static_cast<i32>(lstTopology.items.size());
  lstTopology.selected = std::clamp<i32>(session_.identity.TopologyHelpCode, 1, last);
  Draw();
}

void frmHelp::Draw() {
  picTopology.description = lstTopology.items[static_cast<std::size_t>(lstTopology.selected - 1)];
  picTopology.picture = TopologyPicture(std::string(1, static_cast<char>('A' + lstTopology.selected - 1)));
}

Layout frmHelp::MakeLayout() {
  return Column({Fill(Row({Column({Put(lblNonCauer), Put(lstTopology)}), Fill(Put(picTopology))})),
                 Row({Space(), Put(cmdExit)})});
}

}  // namespace quilm
