#include "shell/Session.h"

#include "core/Configuration.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "shell/History.h"

namespace quilm {

struct Session::Held {
  DesignRecord record;
  Responses responses;
  Configuration configuration;
  History history;
};

Session::Session(Platform& runsOn, PageDirectory directory)
    : held_(std::make_unique<Held>()),
      record(held_->record),
      identity(record),
      entries(record),
      network(record),
      sweep(record),
      responses(held_->responses),
      configuration(held_->configuration),
      history(held_->history),
      familyOption(familyNone),
      platform(runsOn),
      pages(*this, std::move(directory)) {}

Session::~Session() = default;

}  // namespace quilm
