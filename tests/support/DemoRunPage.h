// A page with a long run, as the runs of the program are: each trial changes the design and draws a line, two buttons
// stop it, and the design is put back in every way of ending.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "shell/LongRun.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

struct RunLog {
  std::vector<std::string> heard;  // what the handlers did
  i32 trials = 0;                  // of the last run
  i32 most = 20;                   // trials of a run that is not stopped
  std::function<void()> trial;     // what a trial does besides
};

class DemoRunPage : public Page {
 public:
  DemoRunPage(Session& session, PageId id, RunLog& log) : Page(session, id, "Runs"), log_(log) {
    cmdEnd.visible = cmdEnd.enabled = false;
    cmdExtremes.visible = cmdExtremes.enabled = false;
    fraTools.Hold({&cmdEnd, &cmdExtremes});
    cancelButton = &cmdOther;
    cmdStart.onClick = [this] { Run(); };
    cmdOther.onClick = [this] { log_.heard.push_back("other"); };
    cmdEnd.onClick = [this] { Stop("end"); };
    cmdExtremes.onClick = [this] { Stop("extremes"); };
    picPlot.onMouseDown = [this](f32, f32, MouseButton) { log_.heard.push_back("mouse"); };
  }

  // As the main pages do.
  void CloseBox() override {
    log_.heard.push_back("close box");
    throw ProgramEnd{};
  }

  Layout MakeLayout() override {
    return Column({Row({Put(cmdStart), Put(cmdOther), Put(txtValue), Space()}),
                   Group(fraTools, Row({Put(cmdEnd), Put(cmdExtremes)})), Fill(Put(picPlot))});
  }

  Button cmdStart{*this, "cmdStart", "Start"};
  Button cmdOther{*this, "cmdOther", "Other"};
  TextBox txtValue{*this, "txtValue", "Value"};
  Frame fraTools{*this, "fraTools", "Tools"};
  Button cmdEnd{*this, "cmdEnd", "Stop"};
  Button cmdExtremes{*this, "cmdExtremes", "Stop / show extremes"};
  Timer Timer1{*this, "Timer1", 1};
  PictureBox picPlot{*this, "picPlot", "Plot"};

 private:
  void Run() {
    const f32 nominal = session_.record.Width;
    log_.trials = 0;
    picPlot.picture.Clear();
    {
      LongRun run(session_, *this, {"Demo run", log_.most, {&cmdEnd, &cmdExtremes}, &cmdStart});
      do {
        ++log_.trials;
        session_.record.Width = nominal + session_.random.Next();
        picPlot.picture.Line(0, 0, 13000, 8000 * session_.random.Next(), colorBlue);
        if (log_.trial) log_.trial();
      } while (run.Step());
    }
    session_.record.Width = nominal;
    log_.heard.push_back("ran " + std::to_string(log_.trials));
  }

  void Stop(const char* how) {
    log_.heard.push_back(how);
    if (session_.run != nullptr) session_.run->Stop();
  }

  RunLog& log_;
};

}  // namespace quilm
