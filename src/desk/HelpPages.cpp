#include "desk/HelpPages.h"

#include "shell/Session.h"

namespace quilm {

void OpenHelp(Session& session, const std::string& page) {
  const std::string path = session.platform.HelpFolder() + "/" + page;
  session.note = "Help: " + path;
  if (session.platform.ShellOpen(path)) return;
  session.platform.MessageBox("No browser was found that could show the help page. It lies here:\r\n" + path,
                              Buttons::Ok, Icon::Information, "Help");
}

}  // namespace quilm
