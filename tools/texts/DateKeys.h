// The keys of dates and times.
#pragma once

#include <string_view>

#include "AskedKeys.h"

namespace texts {

void AskForDates(AskedKeys& keys);

// Whether all that a format of a date or time says with "%" and backslash means something.
bool IsDateFormat(std::string_view format);

}  // namespace texts
