#include "tests/support/FaultObserver.h"

#include "host/database/MorvaneDatabase.h"

FaultObserver::FaultObserver(MorvaneDatabase& database, int number, Mode mode)
    : database_(database), number_(number), mode_(mode) {
  database_.setObserver(this);
}

FaultObserver::~FaultObserver() {
  database_.setObserver(nullptr);
}

bool FaultObserver::beforeRun(const FX::FXString&, const Brontel::Database::BoundValues&) {
  ++count_;
  const bool fails = number_ > 0 && (count_ == number_ || (mode_ == Mode::FromThenOn && count_ > number_));
  if (fails) ++faults_;
  return !fails;
}
