#include "HMX_AISuiteManager.h"

#include <algorithm>
#include <string_view>

#include "SuiteTable.h"

namespace {

constexpr SPErr kUnknownSuite = 1;

template <typename Test>
SuiteRow* FindRow(Test test) {
  SuiteRow* const row = std::find_if(sSuiteTable.begin(), sSuiteTable.end(), test);
  return row == sSuiteTable.end() ? nullptr : row;
}

}  // namespace

HMX_AISuiteManager::HMX_AISuiteManager() {
  for (SuiteRow& row : sSuiteTable) {
    row.pointer.set(nullptr);
    row.requested = false;
  }
}

HMX_AISuiteManager& HMX_AISuiteManager::Instance() {
  static HMX_AISuiteManager manager;
  return manager;
}

void HMX_AISuiteManager::Reset() {
  nesting = 0;
  basic = nullptr;
}

void HMX_AISuiteManager::SetBasicSuite(const SPBasicSuite* basicSuite) {
  basic = basicSuite;
  sSPBasic = basicSuite;
}

SPErr HMX_AISuiteManager::Request(const char* name) {
  const std::string_view wanted(name);
  return Mark(FindRow([&](const SuiteRow& row) { return row.name == wanted; }));
}

SPErr HMX_AISuiteManager::Request(const char* name, std::int32_t version) {
  const std::string_view wanted(name);
  return Mark(FindRow([&](const SuiteRow& row) { return row.name == wanted && row.version == version; }));
}

SPErr HMX_AISuiteManager::Mark(SuiteRow* row) {
  if (row == nullptr) return kUnknownSuite;
  if (row->requested) return kSPNoError;
  row->requested = true;
  return nesting >= 1 ? Fetch(*row) : kSPNoError;
}

SPErr HMX_AISuiteManager::Acquire() {
  if (nesting++ != 0) return kSPNoError;
  for (SuiteRow& row : sSuiteTable) {
    if (!row.requested) continue;
    if (const SPErr error = Fetch(row); error != kSPNoError) return error;
  }
  return kSPNoError;
}

SPErr HMX_AISuiteManager::Release() {
  if (nesting-- != 1) return kSPNoError;
  SPErr last = kSPNoError;
  for (SuiteRow& row : sSuiteTable) {
    if (row.requested && row.pointer.get() != nullptr) {
      last = basic->ReleaseSuite(row.name, row.version);
    }
    row.pointer.set(nullptr);
  }
  return last;
}

SPErr HMX_AISuiteManager::Fetch(SuiteRow& row) {
  const void* suite = nullptr;
  const SPErr error = basic->AcquireSuite(row.name, row.version, &suite);
  row.pointer.set(suite);
  return error;
}
