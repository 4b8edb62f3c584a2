// A number as the host writes it.
#pragma once

#include <QString>

namespace qRVADM {

// With `precision` decimals, "." in every language, halves away from 0. Empty for what is no finite number.
QString FormatNumber(double value, int precision);

// Without the zeros at the end of the decimals, and without the "." when none is left. "-0" becomes "0".
QString TrimTrailingZeros(QString text);

}  // namespace qRVADM
