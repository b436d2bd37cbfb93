#include "pages/plot/frmOverlayLists.h"

#include <string>

#include "files/modOverlays.h"
#include "shell/Session.h"

namespace quilm {

frmOverlaySaveList::frmOverlaySaveList(Session& session) : Page(session, PageId::OverlaySaveList, "Save overlays") {
  for (int slot = 1; slot <= overlaySlots; ++slot) {
    const std::string number = std::to_string(slot);
    saveButtons.push_back(std::make_unique<Button>(*this, "cmdSave" + number, "Save " + number));
    saveButtons.back()->onClick = [this, slot] {
      SaveOverlay(session_, slot);
      session_.pages.UnloadPage(Id());
    };
  }
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cancelButton = &cmdExit;
}

void frmOverlaySaveList::Load() {
  int slot = 0;
  for (const auto& button : saveButtons) {
    const bool used = HasOverlay(session_, ++slot);
    button->caption = "Save " + std::to_string(slot) + (used ? " (in use)" : " (empty)");
    button->toolTip = used ? "Save the responses over what is kept here" : "Save the responses here";
  }
  SetFocus(*saveButtons.front());
}

Layout frmOverlaySaveList::MakeLayout() {
  std::vector<Layout> buttons;
  for (const auto& button : saveButtons) buttons.push_back(Put(*button));
  buttons.push_back(Put(cmdExit));
  return Column({Grid(1, std::move(buttons)), Space()});
}

frmOverlayGetList::frmOverlayGetList(Session& session) : Page(session, PageId::OverlayGetList, "Get overlays") {
  for (int slot = 1; slot <= overlaySlots; ++slot) {
    const std::string number = std::to_string(slot);
    getButtons.push_back(std::make_unique<Button>(*this, "cmdGet" + number, "Get " + number,
                                                  "Lay overlay " + number + " over the plot"));
    getButtons.back()->onClick = [this, slot] {
      session_.pages.UnloadPage(Id());
      GetOverlay(session_, slot);
    };
    deleteButtons.push_back(std::make_unique<Button>(*this, "cmdDel" + number, "Delete " + number,
                                                     "Take the files of overlay " + number + " away"));
    deleteButtons.back()->onClick = [this, slot] {
      DeleteOverlay(session_, slot);
      ShowUsedSlots();
    };
  }
  cmdHide.onClick = [this] {
    session_.pages.UnloadPage(Id());
    HideOverlays(session_);
  };
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cancelButton = &cmdExit;
}

void frmOverlayGetList::Load() {
  ShowUsedSlots();
  SetFocus(cmdExit);
}

void frmOverlayGetList::ShowUsedSlots() {
  lblEmpty.visible = true;
  for (std::size_t i = 0; i < getButtons.size(); ++i) {
    const bool used = HasOverlay(session_, static_cast<int>(i) + 1);
    getButtons[i]->visible = deleteButtons[i]->visible = used;
    if (used) lblEmpty.visible = false;
  }
}

Layout frmOverlayGetList::MakeLayout() {
  std::vector<Layout> buttons;
  for (std::size_t i = 0; i < getButtons.size(); ++i) {
    buttons.push_back(Put(*getButtons[i]));
    buttons.push_back(Put(*deleteButtons[i]));
  }
  return Column({Put(lblEmpty), Grid(2, std::move(buttons)), Grid(1, {Put(cmdHide), Put(cmdExit)}), Space()});
}

}  // namespace quilm
