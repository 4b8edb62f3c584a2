// Result codes of the tables of wrappers.
#pragma once

#include "AITypes.h"

constexpr AIErr kMenuNotFoundErr = ErrorCode("ErRM");      // removal of a menu that is not in the table
constexpr AIErr kNotifierNotFoundErr = ErrorCode("ErRN");  // removal of a notifier that is not in the table
constexpr AIErr kToolNotFoundErr = ErrorCode("ErRT");      // removal of a tool that is not in the table
constexpr AIErr kToolTableFullErr = ErrorCode("ErAT");
