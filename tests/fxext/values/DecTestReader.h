#pragma once

#include <istream>
#include <string>
#include <vector>

/// One line of a conformance file: `id operation operand... -> result condition...`, with what is in force there.
struct DecTestCase {
  std::string id;
  std::string operation;                ///< In lower case.
  std::vector<std::string> operands;    ///< Without quotes.
  std::string result;                   ///< Without quotes.
  std::vector<std::string> conditions;  ///< In lower case, such as "inexact".
  std::string rounding;                 ///< Mode in force, in lower case, such as "half_up".

  bool has(const std::string& condition) const;
};

/// Reads the cases of a conformance file of the General Decimal Arithmetic collection, one after the other.
class DecTestReader {
 public:
  /// The stream is not owned.
  explicit DecTestReader(std::istream& in) : in_(in) {}

  /// False at the end of the file. Comments, directives and empty lines are passed over.
  bool next(DecTestCase& read);

 private:
  std::istream& in_;
  std::string rounding_;
};
