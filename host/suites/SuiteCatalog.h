// The one list of the suites that the host offers.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "Refusal.h"

namespace host {

struct SuiteOffer {
  const char* name;
  std::int32_t version;
  const void* table;  // never null; one of a suite without entries is not to be called through
  std::vector<EntryRecord*> entries;  // in the order of the table; empty: plug-ins only hold the suite
};

// Sorted by name; one version a name.
const std::vector<SuiteOffer>& suiteCatalog();

// Null if there is no suite of exactly this name.
const SuiteOffer* findSuite(std::string_view name);

}  // namespace host
