#include "pages/transforms/TransformPage.h"

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "desk/ResponseChange.h"
#include "desk/ReturnToDesign.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

TransformPage::TransformPage(Session& session, PageId id, std::string pageTitle, Proposes proposes)
    : Page(session, id, std::move(pageTitle)),
      proposes_(proposes),
      found_(std::make_unique<DesignRecord>(session.record)) {}

TransformPage::~TransformPage() = default;

void TransformPage::Load() {
  group_.reset();
  *found_ = session_.record;
  Begin();
}

// Also when the program ends with the page open.
void TransformPage::PutBack() { session_.record = *found_; }

void TransformPage::Propose(const Network& proposed) {
  using Meanwhile = History::Group::Meanwhile;
  if (!group_) {
    group_.emplace(session_, title, proposes_ == Proposes::AtOnce ? Meanwhile::UndoIsOff : Meanwhile::UndoTakesAllBack);
  }
  session_.network = proposed;
}

bool TransformPage::HasProposal() const { return session_.network != static_cast<const Network&>(*found_); }

bool TransformPage::Computes(const std::function<void()>& compute) {
  try {
    compute();
    return true;
  } catch (const Fault&) {
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation, "");
    return false;
  }
}

void TransformPage::Accept() {
  if (HasProposal()) StandByHand(session_.identity);
  NoteResponseChange(session_, *found_);
  Leave();
}

void TransformPage::Accept(const Network& accepted) {
  session_.network = accepted;
  Accept();
}

void TransformPage::Ignore() {
  TakeBack();
  Leave();
}

void TransformPage::Leave() {
  group_.reset();
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

}  // namespace quilm
