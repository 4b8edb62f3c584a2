#include "EvaluateExpression.h"

#include <cmath>

#include "ExpressionScanner.h"

namespace host {
namespace {

constexpr int kMaxDepth = 100;

// Lengths are in the field's unit, or in points if the field is for no length.
struct Amount {
  double value;
  Quantity quantity;
};

std::optional<Amount> checked(Amount amount) {
  if (!std::isfinite(amount.value)) return std::nullopt;
  return amount;
}

std::optional<Amount> multiplied(Amount a, Amount b) {
  const double value = a.value * b.value;
  if (a.quantity == Quantity::Number) return checked({value, b.quantity});
  if (b.quantity == Quantity::Number) return checked({value, a.quantity});
  if (a.quantity == Quantity::Percent) return checked({value / 100, b.quantity});
  if (b.quantity == Quantity::Percent) return checked({value / 100, a.quantity});
  return std::nullopt;
}

std::optional<Amount> divided(Amount a, Amount b) {
  if (b.value == 0) return std::nullopt;
  const double value = a.value / b.value;
  if (a.quantity == b.quantity) return checked({value, Quantity::Number});
  if (b.quantity == Quantity::Number) return checked({value, a.quantity});
  if (b.quantity == Quantity::Percent) return checked({value * 100, a.quantity});
  return std::nullopt;
}

class Evaluator {
 public:
  Evaluator(std::string_view text, ExpressionUnit field, double whole)
      : text_(text), field_(field), whole_(whole) {}

  std::optional<double> result() {
    const std::optional<Amount> amount = sum();
    if (!amount || !text_.atEnd()) return std::nullopt;
    const Amount result = inField(*amount);
    if (result.quantity != field_.quantity || !std::isfinite(result.value)) return std::nullopt;
    return result.value;
  }

 private:
  std::optional<Amount> sum() {
    std::optional<Amount> total = product();
    while (total) {
      const bool adds = text_.take('+');
      if (!adds && !text_.take('-')) break;
      const std::optional<Amount> next = product();
      if (!next) return std::nullopt;
      total = added(*total, *next, adds ? 1 : -1);
    }
    return total;
  }

  std::optional<Amount> product() {
    std::optional<Amount> total = factor();
    while (total) {
      const bool multiplies = text_.take('*');
      if (!multiplies && !text_.take('/')) break;
      const std::optional<Amount> next = factor();
      if (!next) return std::nullopt;
      total = multiplies ? multiplied(*total, *next) : divided(*total, *next);
    }
    return total;
  }

  std::optional<Amount> factor() {
    double sign = 1;
    for (;;) {
      if (text_.take('-')) {
        sign = -sign;
      } else if (!text_.take('+')) {
        break;
      }
    }
    const std::optional<Amount> amount = text_.take('(') ? parenthesis() : literal();
    if (!amount) return std::nullopt;
    return checked({sign * amount->value, amount->quantity});
  }

  std::optional<Amount> parenthesis() {
    if (depth_ == kMaxDepth) return std::nullopt;
    ++depth_;
    const std::optional<Amount> inside = sum();
    --depth_;
    if (!inside || !text_.take(')')) return std::nullopt;
    return inside;
  }

  std::optional<Amount> literal() {
    const std::optional<double> number = text_.takeNumber();
    if (!number) return std::nullopt;
    if (const auto unit = text_.takeUnit()) {
      const Amount amount = amountOf(*number, *unit);
      return Amount{amount.value + smallerPart(*unit), amount.quantity};
    }
    if (const auto quotient = restOfQuotient(*number)) return quotient;
    return Amount{*number, Quantity::Number};
  }

  // The unit behind "1/2 in" belongs to the whole of it.
  std::optional<Amount> restOfQuotient(double dividend) {
    ExpressionScanner ahead = text_;
    if (!ahead.take('/')) return std::nullopt;
    const std::optional<double> divisor = ahead.takeNumber();
    if (!divisor || *divisor == 0) return std::nullopt;
    const std::optional<ExpressionUnit> unit = ahead.takeUnit();
    if (!unit) return std::nullopt;
    text_ = ahead;
    return amountOf(dividend / *divisor, *unit);
  }

  // Behind the number of picas may stand points without a unit, behind that of feet inches: "3p6", "5'6\"".
  double smallerPart(ExpressionUnit larger) {
    if (!(larger == unit::kPica) && !(larger == unit::kFoot)) return 0;
    ExpressionScanner ahead = text_;
    const std::optional<double> number = ahead.takeNumber();
    if (!number) return 0;
    const bool isPicas = larger == unit::kPica;
    if (!isPicas && !(ahead.takeUnit() == unit::kInch)) return 0;
    text_ = ahead;
    return amountOf(*number, isPicas ? unit::kPoint : unit::kInch).value;
  }

  // A length that is in the field's own unit takes no detour that could change its last digit.
  Amount amountOf(double number, ExpressionUnit written) const {
    const bool isFields = written.points == field_.points;
    if (isFields || written.quantity != Quantity::Length) return {number, written.quantity};
    return {number * written.points / field_.points, Quantity::Length};
  }

  Amount inField(Amount amount) const {
    if (amount.quantity == Quantity::Number) return {amount.value, field_.quantity};
    if (amount.quantity == Quantity::Percent && field_.quantity != Quantity::Percent) {
      return {whole_ * (amount.value / 100), field_.quantity};
    }
    return amount;
  }

  std::optional<Amount> added(Amount a, Amount b, double sign) const {
    if (a.quantity != b.quantity) {
      a = inField(a);
      b = inField(b);
    }
    if (a.quantity != b.quantity) return std::nullopt;
    return checked({a.value + sign * b.value, a.quantity});
  }

  ExpressionScanner text_;
  const ExpressionUnit field_;
  const double whole_;
  int depth_ = 0;
};

}  // namespace

std::optional<double> evaluateExpression(std::string_view utf8, ExpressionUnit field, double whole) {
  return Evaluator(utf8, field, whole).result();
}

}  // namespace host
