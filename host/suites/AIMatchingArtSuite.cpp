#include "AIMatchingArt.h"

#include <algorithm>

#include "Blocks.h"
#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr handOut(const Document& document, const std::vector<ArtId>& art, AIArtHandle** matches) {
  *matches = nullptr;
  if (art.empty()) return kNoErr;
  void* block = nullptr;
  if (const SPErr error = allocateBlock(art.size() * sizeof(AIArtHandle), &block)) return error;
  *matches = static_cast<AIArtHandle*>(block);
  std::transform(art.begin(), art.end(), *matches, [&](ArtId id) { return artHandle(document, id); });
  return kNoErr;
}

AIErr getSelectedArt(Host& host, AIArtHandle** matches, std::int32_t* count) {
  if (count == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  const std::vector<ArtId> selected = document->selection();
  *count = static_cast<std::int32_t>(selected.size());
  return matches == nullptr ? kNoErr : handOut(*document, selected, matches);
}

}  // namespace

SuiteOffer matchingArtSuite() {
  SuiteEntries entries(kAIMatchingArtSuite);
  static const AIMatchingArtSuite table{
      entries.add<getSelectedArt>("GetSelectedArt"),
  };
  return entries.offer(kAIMatchingArtSuiteVersion, &table);
}

}  // namespace host
