#include "pages/diplexer/frmDipResonate.h"

#include "core/modGeneral.h"
#include "diplexer/DesignDiplexer.h"
#include "display/DiplexerDrawing.h"
#include "shell/EntryText.h"
#include "shell/Session.h"

namespace quilm {

frmDipResonate::frmDipResonate(Session& session) : Page(session, PageId::DipResonate, "Resonate series L") {
  cmdPrevious_.onClick = [this] { Step(-2); };
  cmdNext_.onClick = [this] { Step(2); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cancelButton = &cmdExit_;
}

void frmDipResonate::Load() {
  part_ = 1;
  Show();
  SetFocus(cmdNext_.enabled ? cmdNext_ : cmdExit_);
}

// A step beyond the arm is no step.
void frmDipResonate::Step(int by) {
  const int next = part_ + by;
  if (next < 1 || next > session_.diplexer.DipOrder) return;
  part_ = next;
  Show();
}

void frmDipResonate::Show() {
  const Diplexer& diplexer = session_.diplexer;
  const f32 L = diplexer.DipLowElem[part_];
  const f32 C = ResonatingCapacitor(L, diplexer.DipCrossover);
  const std::string capacitor = EntryText(C, FormatCapacitance);
  DrawTrap(L, C, picResonate_.picture);
  picResonate_.description = EntryText(L, FormatInductance) + " with " + capacitor + " in parallel";
  lblPartNumber_.caption = std::to_string(part_);
  lblResonance_.caption =
      capacitor + " in parallel resonates with it at " + EntryText(diplexer.DipCrossover, FormatFrequency) + "Hz.";
  cmdPrevious_.enabled = part_ > 1;
  cmdNext_.enabled = part_ + 2 <= diplexer.DipOrder;
}

Layout frmDipResonate::MakeLayout() {
  return Column({Row({Put(lblPart_), Put(lblPartNumber_), Space(), Put(cmdPrevious_), Put(cmdNext_)}),
                 Fill(Put(picResonate_)), Put(lblResonance_), Row({Space(), Put(cmdExit_)})});
}

}  // namespace quilm
