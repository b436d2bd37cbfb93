// The small plot that follows the entries of a page.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/AxisPlaces.h"
#include "core/RecordFwd.h"
#include "shell/Control.h"

namespace quilm {

class Page;
class Session;

class DesignPreview {
 public:
  // Entries: the network that the entries of the design give, over a sweep that fits its band. Network: the network as
  // it stands, over its own sweep.
  enum class Of { Entries, Network };

  // A click on the plot runs `toPlot`.
  DesignPreview(Page& page, Session& session, Of of, std::function<void()> toPlot);
  ~DesignPreview();

  // Shows the design as it is now, or why there is nothing to show; nothing when it has not changed. Works on a copy:
  // neither the record nor its responses change, no page and no box opens.
  void CatchUp();

  PictureBox picPreview;

 private:
  // Each returns why there is nothing to show; empty when there is something. Prepare makes of the design what its plot
  // would have.
  std::string Show(DesignRecord& design);
  std::string Prepare(DesignRecord& design) const;
  void Draw(const DesignRecord& design);

  Session& session_;
  Of of_;
  Scale scale_;
  std::unique_ptr<DesignRecord> shown_;  // the design that the picture was made for
  std::unique_ptr<Responses> responses_;
  AxisPlaces places_;
};

}  // namespace quilm
