#include "pages/studies/StudyPage.h"

#include "shell/Session.h"

namespace quilm {

void StudyPage::Return() {
  session_.pages.ShowPage(PageId::Analyze);
  session_.pages.UnloadPage(Id());
}

void StudyPage::TellOfFault() {
  session_.platform.MessageBox(
      "We had a plotting routine problem.\r\nCheck analysis starting and stopping frequencies\r\n"
      "and check the network component values.",
      Buttons::Ok, Icon::Critical, "Error checker");
}

}  // namespace quilm
