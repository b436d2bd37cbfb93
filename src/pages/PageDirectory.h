// The one list of the pages that the program has.
#pragma once

#include "shell/PageDesk.h"

namespace quilm {

PageDirectory AllPages();

}  // namespace quilm
