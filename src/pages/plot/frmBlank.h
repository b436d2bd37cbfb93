// An empty page: what shows while a page is taken away to be loaded afresh.
#pragma once

#include "shell/Page.h"

namespace quilm {

class frmBlank : public Page {
 public:
  explicit frmBlank(Session& session) : Page(session, PageId::Blank, "Quilm") {}
  Layout MakeLayout() override { return Space(); }
};

}  // namespace quilm
