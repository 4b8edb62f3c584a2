#include "DimensionController.h"

#include <QPointer>
#include <cmath>

#include "FormatDimension.h"
#include "ParseDimension.h"

namespace qRVADM {
namespace {

constexpr double kNoStep = 1e-10;  // smaller differences are none

double NextMultiple(double value, double delta) {
  const double size = std::abs(delta);
  const double steps = value / size;
  const double multiple = (delta > 0 ? std::ceil(steps) : std::floor(steps)) * size;
  return std::abs(multiple - value) < kNoStep ? multiple + delta : multiple;
}

}  // namespace

DimensionController::DimensionController(const TextReader& textReader, const TextWriter& parsingWriter,
                                         const TextWriter& textWriter, Dimension first)
    : dimension(first),
      getText(textReader),
      setTextAndParse(parsingWriter),
      setText(textWriter),
      getDefault([](ADMUnits) { return 0.0; }) {
  if (first.value == 0.0) {
    FormatImmediate();
  } else {
    Set(first, false);
  }
}

Dimension DimensionController::Clamp(Dimension wanted) const {
  const double points = ToPoints(wanted);
  if (std::isnan(points)) return dimension;
  if (minimum > points) {
    wanted.value = minimum / PointsPerUnit(wanted.unit);
  } else if (points > maximum) {
    wanted.value = maximum / PointsPerUnit(wanted.unit);
  }
  return wanted;
}

void DimensionController::ShowText(const QString& text) {
  if (text != getText()) setText(text);
}

void DimensionController::Set(Dimension wanted, bool storeOnly) {
  dimension = Clamp(wanted);
  if (!storeOnly) ShowText(FormatDimension(dimension, precision));
}

void DimensionController::SetDimension(Dimension wanted) {
  Set({ConvertDimension(wanted, dimension.unit), dimension.unit}, false);
}

void DimensionController::SetUnit(ADMUnits unit) {
  Set({ConvertDimension(dimension, unit), unit}, false);
}

void DimensionController::SetPrecision(int decimals) {
  precision = decimals < 0 ? -1 : decimals;
}

int DimensionController::GetPrecision() const {
  return precision < 0 ? DefaultDecimals(dimension.unit) : precision;
}

bool DimensionController::IsTextValid() const {
  return ParseDimension(getText(), dimension.unit, 0.0).unit != kUnreadableUnits;
}

Dimension DimensionController::ReadText() const {
  const Dimension read = ParseDimension(getText(), dimension.unit, getDefault(dimension.unit));
  return read.unit == kUnreadableUnits ? dimension : read;
}

void DimensionController::SetFromText(bool storeOnly) {
  const QPointer<DimensionController> alive(this);
  Set(ReadText(), storeOnly);
  if (alive) Q_EMIT Parsed();
}

void DimensionController::Parse() {
  SetFromText(false);
}

void DimensionController::ParseImmediate() {
  SetFromText(true);
}

void DimensionController::FormatImmediate() {
  setTextAndParse(FormatDimension(dimension, precision));
}

void DimensionController::Step(double delta) {
  if (std::abs(delta) < kNoStep) return;
  const QPointer<DimensionController> alive(this);
  ShowText(FormatDimension({NextMultiple(dimension.value, delta), dimension.unit}, precision));
  if (alive) Parse();
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_DimensionController.cpp"
