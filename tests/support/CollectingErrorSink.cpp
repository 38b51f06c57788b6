#include "tests/support/CollectingErrorSink.h"

#include "host/database/MorvaneDatabase.h"

CollectingErrorSink::CollectingErrorSink(MorvaneDatabase& database) : database_(database) {
  database_.setErrorSink(this);
}

CollectingErrorSink::~CollectingErrorSink() {
  database_.setErrorSink(nullptr);
}
