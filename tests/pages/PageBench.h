// A session with real pages on a machine without a window, for testing pages by the names of their controls.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/DesignRecord.h"
#include "shell/Acts.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

class PageBench : public testing::Test {
 protected:
  explicit PageBench(PageDirectory pages) : platform(MakeFolder()), session(platform, std::move(pages)) {}
  ~PageBench() override { std::filesystem::remove_all(platform.ProgramFolder()); }

  Page& Top() { return *session.pages.Top(); }

  template <class T>
  T& Get(const std::string& name) {
    auto* control = dynamic_cast<T*>(Top().Find(name));
    if (control == nullptr) throw Fault("no control " + name + " on " + std::string(Top().Name()));
    return *control;
  }

  void Press(const std::string& name) { Click(session, Get<Control>(name)); }

  // Types into a box of the page on top, one change a keystroke, and leaves it.
  void Enter(const std::string& name, const std::string& text) {
    for (std::size_t length = text.empty() ? 0 : 1; length <= text.size(); ++length) {
      Type(session, Get<TextBox>(name), text.substr(0, length));
    }
    Leave(session, Get<TextBox>(name));
  }

  // From the opening page to a Butterworth lowpass of 1 MHz between 50 ohms on the plot.
  void MakeLowpass() {
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Press("cmdPlot");
  }

  // Files of the program's folder.
  std::string Path(const std::string& name) { return platform.ProgramFolder() + "/" + name; }
  bool Exists(const std::string& name) { return std::filesystem::exists(Path(name)); }

  std::string File(const std::string& name) {
    std::ifstream in(Path(name), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }

  std::vector<std::string> MessageTexts() const {
    std::vector<std::string> texts;
    for (const MessageShown& message : platform.messages) texts.push_back(message.text);
    return texts;
  }

  HeadlessPlatform platform;
  Session session;

 private:
  static std::string MakeFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quilm-pages-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw Fault("no temporary folder");
    return pattern;
  }
};

}  // namespace quilm
