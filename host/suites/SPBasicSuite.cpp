#include "SPBasic.h"

#include <cstring>

#include "Blocks.h"
#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

SPErr acquireSuite(Host& host, const char* name, std::int32_t version, const void** suite) {
  if (name == nullptr || suite == nullptr) return kSPBadParameterError;
  const SuiteOffer* offer = findSuite(name);
  if (offer == nullptr || offer->version != version || host.refusal().withholds(name)) {
    return kSPSuiteNotFoundError;
  }
  ++host.holdCount(*offer);
  *suite = offer->table;
  return kSPNoError;
}

// Null first, so that every failure leaves it so.
SPErr acquireCleared(const char* name, std::int32_t version, const void** suite) {
  if (suite != nullptr) *suite = nullptr;
  return Guard<acquireSuite>::call(name, version, suite);
}

SPErr releaseSuite(Host& host, const char* name, std::int32_t version) {
  if (name == nullptr) return kSPBadParameterError;
  const SuiteOffer* offer = findSuite(name);
  if (offer == nullptr || offer->version != version || host.holdCount(*offer) == 0) {
    return kSPSuiteNotFoundError;
  }
  --host.holdCount(*offer);
  return kSPNoError;
}

std::int32_t isEqual(Host&, const char* a, const char* b) {
  return a != nullptr && b != nullptr && std::strcmp(a, b) == 0 ? 1 : 0;
}

SPErr allocate(Host&, std::size_t size, void** block) {
  return allocateBlock(size, block);
}

SPErr release(Host&, void* block) {
  return freeBlock(block);
}

}  // namespace

SuiteOffer basicSuite() {
  SuiteEntries entries(kSPBasicSuite);
  entries.add<acquireSuite>("AcquireSuite");
  static const SPBasicSuite table{
      &acquireCleared,
      entries.add<releaseSuite>("ReleaseSuite"),
      entries.addUncounted<isEqual>("IsEqual"),
      entries.add<allocate>("AllocateBlock"),
      entries.add<release>("FreeBlock"),
  };
  return entries.offer(kSPBasicSuiteVersion, &table);
}

}  // namespace host
