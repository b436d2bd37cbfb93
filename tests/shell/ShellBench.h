// Pages of a test's own making: what they do is handed in.
#pragma once

#include <gtest/gtest.h>

#include "shell/Acts.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

using Log = std::vector<std::string>;

class BenchPage : public Page {
 public:
  BenchPage(Session& session, PageId id, Log& heard) : Page(session, id, "Bench"), log(heard) {}
  ~BenchPage() override { log.push_back("destroyed " + std::string(Name())); }
  void Load() override {
    log.push_back("load " + std::string(Name()));
    if (onLoad) onLoad();
  }
  void Reload() override {
    if (onReload) return onReload();
    Load();
  }
  Layout MakeLayout() override { return place; }
  std::function<void()> onLoad;
  std::function<void()> onReload;  // in place of the load step
  Layout place = Column({});

  Log& log;
  Frame fraBox{*this, "fraBox", "Box"};
  Button cmdGo{*this, "cmdGo", "Go"};
  OptionGroup group;
  OptionButton optOne{*this, group, "optOne", "One"};
  OptionButton optTwo{*this, group, "optTwo", "Two"};
  TextBox txtValue{*this, "txtValue", "Value"};
  Label lblValue{*this, "lblValue", "Value"};
  Spin UpDown1{*this, "UpDown1", "Order"};
  ListBox lstLines{*this, "lstLines", "Lines"};
  Timer Timer1{*this, "Timer1", 10};
  PictureBox picPlot{*this, "picPlot", "Plot"};
};

// A session whose pages are three of these.
struct ShellBench {
  Log log;
  std::function<void(BenchPage&)> prepare;  // every page that is made
  HeadlessPlatform platform{"/nowhere"};
  Session session{platform, Pages()};

  BenchPage& Show(PageId id = PageId::Design) {
    session.pages.ShowPage(id);
    return static_cast<BenchPage&>(*session.pages.Find(id));
  }

 private:
  PageDirectory Pages() {
    PageDirectory pages;
    for (const PageId id : {PageId::Design, PageId::Plotted, PageId::EnterWidth}) {
      pages[id] = [this, id](Session& owner) {
        auto page = std::make_unique<BenchPage>(owner, id, log);
        if (prepare) prepare(*page);
        return page;
      };
    }
    return pages;
  }
};

}  // namespace quilm
