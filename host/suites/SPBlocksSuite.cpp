#include "SPBlocks.h"

#include "Blocks.h"
#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

SPErr allocate(Host&, std::size_t size, const char*, void** block) {
  return allocateBlock(size, block);
}

SPErr release(Host&, void* block) {
  return freeBlock(block);
}

}  // namespace

SuiteOffer blocksSuite() {
  SuiteEntries entries(kSPBlocksSuite);
  static const SPBlocksSuite table{
      entries.add<allocate>("AllocateBlock"),
      entries.add<release>("FreeBlock"),
  };
  return entries.offer(kSPBlocksSuiteVersion, &table);
}

}  // namespace host
