// What the pages share that change the network of the design as a whole: the design as they found it, the proposal that
// stands in the record until it is accepted, and the ways back to the Design page.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "core/RecordFwd.h"
#include "shell/History.h"
#include "shell/Page.h"

namespace quilm {

class TransformPage : public Page {
 public:
  // When the page proposes: as soon as it opens, so that there is nothing to undo but by its ignore button, or when its
  // buttons are pressed, which undo takes back together.
  enum class Proposes { AtOnce, OnPress };

  TransformPage(Session& session, PageId id, std::string title, Proposes proposes);
  ~TransformPage() override;

  // Takes down the design, then Begin.
  void Load() final;
  // The close box and Escape ignore.
  void CloseBox() override { Ignore(); }
  PageId Home() const override { return PageId::Design; }
  void PutBack() override;

 protected:
  // The load step of the page.
  virtual void Begin() = 0;

  // What Ignore puts back: the whole design as the page found it, unless a page says otherwise.
  virtual void TakeBack() { PutBack(); }

  // The design as the page found it.
  const DesignRecord& Found() const { return *found_; }

  // The record holds the network until it is accepted or ignored. Marks of the design stay as they are.
  void Propose(const Network& proposed);

  // Whether the record holds another network than the page found.
  bool HasProposal() const;

  // Runs what computes a network. False when it ended on a fault of the numbers or found no room in the stage list; the
  // user was told then.
  bool Computes(const std::function<void()>& compute);

  // Leaves for the Design page with the network that the record holds, or with `accepted`. If that is another one than
  // the page found, the design stands by hand from now on and the status line tells what became of the response;
  // otherwise nothing changes. All of it is one step of the history.
  void Accept();
  void Accept(const Network& accepted);

  // Leaves for the Design page with the design as it was found, as far as TakeBack goes.
  void Ignore();

  // Leaves for the Design page with the design as it is.
  void Leave();

 private:
  Proposes proposes_;
  std::unique_ptr<DesignRecord> found_;
  std::optional<History::Group> group_;  // from the first proposal on
};

}  // namespace quilm
