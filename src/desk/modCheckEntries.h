// The check before an analysis, as the user sees it.
#pragma once

namespace quilm {

class Session;

// Runs ExamineEntries, shows the repaired entries in the boxes of the pages that are open, and the messages. After a
// failed check returns to the Design page with the focus on the entry in question. True if all checks passed.
bool CheckEntries(Session& session);

}  // namespace quilm
