// The small modal forms that ask for one missing entry of the design.
//
// Ok takes the entry into the record; Ignore and the close box leave the record alone. A form asks once and takes what
// it is given: whether that will do is for whoever opened it to find out, so nobody is held in a form. An unusable
// entry meets the check before the analysis, and is asked for again at the next press.
#pragma once

#include "shell/Page.h"

namespace quilm {

struct DesignRecord;

// What one form asks for.
struct EntryQuestion {
  PageId page;
  const char* title;
  const char* question;
  const char* box;  // the name of the text box
  f32& (*field)(DesignRecord&);
  Formatter format;
};

const EntryQuestion& QuestionOf(PageId page);

class EntryForm : public Page {
 public:
  EntryForm(Session& session, const EntryQuestion& question);
  void Load() override;
  Layout MakeLayout() override;

 private:
  void Accept();

  const EntryQuestion& question_;
  f32 value_ = 0;  // as understood so far; the box may show fewer digits
  Label lblEntry_;
  TextBox txtEntry_;
  Button cmdOk_{*this, "cmdOk", "Ok", "Take this entry"};
  Button cmdIgnore_{*this, "cmdIgnore", "Ignore", "Leave the entry as it was"};
};

template <PageId id>
class EntryFormFor : public EntryForm {
 public:
  explicit EntryFormFor(Session& session) : EntryForm(session, QuestionOf(id)) {}
};

using frmEnterWidth = EntryFormFor<PageId::EnterWidth>;
using frmEnterCenterFreq = EntryFormFor<PageId::EnterCenterFreq>;
using frmEnterInput = EntryFormFor<PageId::EnterInput>;
using frmEnterFstopband = EntryFormFor<PageId::EnterFstopband>;

}  // namespace quilm
