// Arbitrary bytes as an expression in a field of an arbitrary unit: the first byte names it.
#include <cmath>
#include <cstdint>
#include <string>

#include "DecimalText.h"
#include "EvaluateExpression.h"
#include "Expect.h"
#include "FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  constexpr double kWhole = 7.5;
  const host::ExpressionUnit field = host::unitOfField(data[0] % 20);
  const std::string typed(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::optional<double> value = host::evaluateExpression(typed, field, kWhole);
  if (!value) return 0;
  Expect(std::isfinite(*value), "a result is a finite number");
  Expect(host::evaluateExpression("(" + typed + ")", field, kWhole) == value ||
             typed.find('(') != std::string::npos,
         "a pair of parentheses changes nothing");
  // More decimals than any double has.
  const std::string written = host::decimalText(*value, 400, false);
  Expect(host::evaluateExpression(written, field, kWhole) == value, "a result is read back as it was");
  return 0;
}
