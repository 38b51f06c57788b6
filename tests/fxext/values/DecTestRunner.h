#pragma once

#include <map>
#include <string>

#include "tests/fxext/values/DecTestReader.h"

/// Does on FXDecimal what conformance cases ask for, expects their results, and counts what it did.
///
/// A case runs when it is one of a decimal of 64 bits: finite numbers whose mantissas fit before and after they are
/// brought to the same number of places, with powers of ten from the table, and a result that is exact or rounded as
/// the class rounds (half up; down where it cuts). Everything else is counted under the reason why it does not apply.
class DecTestRunner {
 public:
  using Counts = std::map<std::string, int>;

  /// Passes over operations that the class does not have.
  void run(const DecTestCase& test);

  /// Cases that ran, by operation.
  const Counts& ran() const { return ran_; }
  /// Cases that do not apply, by reason.
  const Counts& skipped() const { return skipped_; }
  int total() const;

 private:
  Counts ran_;
  Counts skipped_;
};
