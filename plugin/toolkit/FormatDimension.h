// A number with its unit as text.
#pragma once

#include <QString>

#include "Dimension.h"

namespace qRVADM {

// Decimals up to `precision`, or up to what the unit has by default for -1. Picas are written as whole picas
// and points, "3p6", where the sign shows on the picas only. Empty for what is no finite number.
QString FormatDimension(Dimension dimension, int precision);

}  // namespace qRVADM
