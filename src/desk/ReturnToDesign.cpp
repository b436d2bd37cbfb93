#include "desk/ReturnToDesign.h"

#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

void ReturnToDesign(Session& session, std::string_view focus) {
  const Page* top = session.pages.Top();
  if (top == nullptr || top->Id() != PageId::Design) session.pages.ShowPage(PageId::Design);
  Page* design = session.pages.Find(PageId::Design);
  if (design == nullptr) return;
  if (Control* control = design->Find(focus)) design->SetFocus(*control);
}

}  // namespace quilm
