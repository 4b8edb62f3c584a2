#include "SvgTransform.h"

#include <cmath>
#include <cstddef>

#include "Geometry.h"
#include "SvgNumber.h"
#include "SvgScanner.h"

namespace host {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr std::size_t kMaxArguments = 6;

struct Arguments {
  double values[kMaxArguments];
  std::size_t count = 0;
};

// What a number with this unit is multiplied with; 0 if there is no such unit.
double unitFactor(std::string_view unit) {
  if (unit.empty() || unit == "px" || unit == "deg") return 1;
  if (unit == "grad") return 0.9;
  if (unit == "rad") return 180 / kPi;
  if (unit == "turn") return 360;
  return 0;
}

// From behind "(" to behind ")".
std::optional<Arguments> readArguments(SvgScanner& scanner) {
  Arguments arguments;
  scanner.skipBlanks();
  while (!scanner.take(')')) {
    if (arguments.count == kMaxArguments) return std::nullopt;
    const std::optional<double> value = scanner.number();
    const double factor = unitFactor(scanner.identifier());
    if (!value || factor == 0 || !std::isfinite(*value)) return std::nullopt;
    arguments.values[arguments.count++] = *value * factor;
    scanner.skipCommaBlanks();
  }
  return arguments;
}

AIRealMatrix rotation(double degrees) {
  const double radians = degrees * kPi / 180;
  const double cosine = std::cos(radians);
  const double sine = std::sin(radians);
  return {cosine, sine, -sine, cosine, 0, 0};
}

AIRealMatrix rotationAbout(double degrees, double x, double y) {
  return concat(concat({1, 0, 0, 1, -x, -y}, rotation(degrees)), {1, 0, 0, 1, x, y});
}

double tangent(double degrees) {
  return std::tan(degrees * kPi / 180);
}

std::optional<AIRealMatrix> matrixOf(std::string_view function, const Arguments& arguments) {
  const double* v = arguments.values;
  const std::size_t count = arguments.count;
  if (function == "matrix" && count == 6) return AIRealMatrix{v[0], v[1], v[2], v[3], v[4], v[5]};
  if (function == "translate" && count == 1) return AIRealMatrix{1, 0, 0, 1, v[0], 0};
  if (function == "translate" && count == 2) return AIRealMatrix{1, 0, 0, 1, v[0], v[1]};
  if (function == "scale" && count == 1) return AIRealMatrix{v[0], 0, 0, v[0], 0, 0};
  if (function == "scale" && count == 2) return AIRealMatrix{v[0], 0, 0, v[1], 0, 0};
  if (function == "rotate" && count == 1) return rotation(v[0]);
  if (function == "rotate" && count == 3) return rotationAbout(v[0], v[1], v[2]);
  if (function == "skewX" && count == 1) return AIRealMatrix{1, 0, tangent(v[0]), 1, 0, 0};
  if (function == "skewY" && count == 1) return AIRealMatrix{1, tangent(v[0]), 0, 1, 0, 0};
  return std::nullopt;
}

bool isUpright(const AIRealMatrix& matrix) {
  AIRealMatrix inverse{};
  return invert(matrix, inverse);
}

std::optional<AIRealMatrix> productOf(std::string_view text, bool onlyUpright) {
  AIRealMatrix product = kIdentity;
  text = withoutBlanksAround(text);
  if (text == "none") return product;
  SvgScanner scanner(text);
  while (!scanner.atEnd()) {
    const std::string_view function = scanner.identifier();
    scanner.skipBlanks();
    if (!scanner.take('(')) return std::nullopt;
    const std::optional<Arguments> arguments = readArguments(scanner);
    const std::optional<AIRealMatrix> matrix = arguments ? matrixOf(function, *arguments) : std::nullopt;
    if (!matrix) return std::nullopt;
    if (!onlyUpright || isUpright(*matrix)) product = concat(*matrix, product);
    scanner.skipCommaBlanks();
  }
  return product;
}

}  // namespace

std::optional<AIRealMatrix> parseTransform(std::string_view text) {
  return productOf(text, false);
}

std::optional<AIRealMatrix> parseUprightTransform(std::string_view text) {
  return productOf(text, true);
}

std::string transformText(const AIRealMatrix& m) {
  std::string text = "matrix(";
  for (const double number : {m.a, m.b, m.c, m.d, m.tx, m.ty}) {
    if (text.back() != '(') text += ' ';
    appendNumber(text, number);
  }
  return text + ")";
}

}  // namespace host
