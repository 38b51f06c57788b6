#pragma once

#include <string>
#include <vector>

#include "tests/app/AppTest.h"

/// The real program on a sample database that somebody has spoilt.
class HostileTest : public AppTest {
 protected:
  /// Spoils the sample, which is made first, behind the program's back: nothing is enforced.
  void spoil(const std::string& script) const;

  /// Every command on every invoice. Each one ends by itself and well: done, something to mend, or refused with one
  /// line; what it exports is well-formed to the library and to xmllint, and no reading command changes anything.
  void expectAllCommandsSurvive(const Environment& environment = {}) const;

  /// Saves the open invoices, unchanged. What was recorded stays as it was, also when a save is refused.
  void expectSavesKeepAllData() const;

  /// Everything but the versions of the invoices, with types.
  std::string content() const;

  /// What the program xmllint has against an XML text; nothing when it is well-formed.
  static std::string complaintOfXmllint(const std::string& xml);

 private:
  ProgramRun runBounded(const Arguments& arguments, const Environment& environment) const;
};
