// What a row of a list was given as its text.
#pragma once

#include <string>

#include "RVADM_ListEntry.h"

namespace Vandrell::Corvane {

// UTF-8 before its translation; what goes beyond 4095 bytes is missing.
inline std::string RowText(const qRVADM::RVADM_ListEntry& row) {
  char text[4096] = "";
  row.GetText(text, sizeof text, false);
  return text;
}

}  // namespace Vandrell::Corvane
