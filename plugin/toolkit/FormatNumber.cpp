#include "FormatNumber.h"

#include <cmath>
#include <cstdint>

#include "AIError.h"
#include "AIUser.h"
#include "IAIUnicodeString.h"

namespace qRVADM {
namespace {

// A little above a half, so that a value that lies under a half by no more than it lost on its way through
// other units is still rounded up.
constexpr double kHalf = 0.5000001192092896;  // 0.5 + 2^-23
constexpr double kWholeBeyond = 0x1p63;       // such numbers have no decimals to round

double Rounded(double value, int precision) {
  const double power = std::pow(10.0, precision);
  const double scaled = power * value + kHalf;
  return scaled < kWholeBeyond ? std::trunc(scaled) / power : value;
}

QString WrittenByHost(double value, int precision) {
  if (sAIUser == nullptr) throw ai::Error(kSPSuiteNotFoundError);
  ai::UnicodeString text;
  ai::ThrowOnError(sAIUser->RealToString(value, static_cast<std::int16_t>(precision), 1, text.handle()));
  return QString::fromStdString(text.as_UTF8());
}

}  // namespace

QString FormatNumber(double value, int precision) {
  if (!std::isfinite(value)) return {};
  if (std::abs(value) < std::pow(10.0, -(precision + 1.0))) value = 0;
  if (value > 0) value = Rounded(value, precision);
  try {
    return WrittenByHost(value, precision);
  } catch (const ai::Error&) {
    return QString::number(value, 'f', precision);
  }
}

QString TrimTrailingZeros(QString text) {
  bool hasDecimals = text.contains(QLatin1Char('.'));
  while (hasDecimals && text.size() >= 2) {
    const QChar last = text.back();
    if (last != QLatin1Char('0') && last != QLatin1Char('.')) break;
    hasDecimals = last != QLatin1Char('.');
    text.chop(1);
  }
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

}  // namespace qRVADM
