#include "ParseDimension.h"

#include "AIError.h"
#include "AIUser.h"
#include "IAIUnicodeString.h"

namespace qRVADM {
namespace {

constexpr Dimension kUnreadable{0.0, kUnreadableUnits};

// The host counts the large units otherwise.
std::int32_t HostUnit(ADMUnits unit) {
  switch (unit) {
    case kFootUnits:
    case kFootAndInchUnits:
      return 12;
    case kMeterUnits:
      return 15;
    case kYardUnits:
      return 16;
    default:
      return unit;
  }
}

}  // namespace

Dimension ParseDimension(const QString& text, ADMUnits unit, double defaultValue) {
  if (sAIUser == nullptr) return kUnreadable;
  const AIExpressionOptions options{HostUnit(unit), -999999.0, 1000000.0, defaultValue, 4};
  AIBoolean flag = 0;
  AIReal value = 0;
  try {
    const ai::UnicodeString expression(text.toStdString());
    const AIErr code = sAIUser->EvaluateExpression(expression.handle(), &options, nullptr, &flag, &value);
    if (code != kNoErr || flag != 0) return kUnreadable;
  } catch (const ai::Error&) {
    return kUnreadable;
  }
  return {value, unit};
}

}  // namespace qRVADM
