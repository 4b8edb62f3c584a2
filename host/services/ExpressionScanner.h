// The words of an expression, taken from its front.
#pragma once

#include <optional>
#include <string_view>

#include "ExpressionUnit.h"

namespace host {

// Blanks of every kind count for nothing between words. What takes nothing moves nothing. A copy is a place
// to come back to. The text must outlive the scanner.
class ExpressionScanner {
 public:
  explicit ExpressionScanner(std::string_view utf8) : rest_(utf8) {}

  bool atEnd();
  // One of + - * / ( ), in any of its typographic forms.
  bool take(char sign);
  // Digits with one "," or "." among or around them. Nullopt also for a number with two of these, which may
  // mean this or that, and for one that is beyond a double.
  std::optional<double> takeNumber();
  // A unit by any of its usual spellings, in capitals or not.
  std::optional<ExpressionUnit> takeUnit();

 private:
  std::optional<ExpressionUnit> takeMark();
  bool takeText(std::string_view text);
  void skipBlanks();

  std::string_view rest_;
};

}  // namespace host
