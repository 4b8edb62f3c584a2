#include "AIHitTest.h"

#include <cmath>

#include "Entry.h"
#include "HitTests.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr hitTest(Host& host, AIArtHandle art, const AIRealPoint* point, std::int32_t request, AIHitRef* hit) {
  if (point == nullptr || hit == nullptr || !std::isfinite(point->x) || !std::isfinite(point->y)) {
    return kBadParameterErr;
  }
  if (art == nullptr) {
    const Document* document = host.currentDocument();
    if (document == nullptr) return kNoDocumentErr;
    *hit = host.hitTests().test(*document, 0, *point, request);
    return kNoErr;
  }
  const ArtRef found = findArt(host, art);
  if (!found) return kBadParameterErr;
  *hit = host.hitTests().test(*found.document, found.id, *point, request);
  return kNoErr;
}

// The open document that the latest test was about; null if `hit` is not its reference any more.
Document* documentOf(Host& host, AIHitRef hit) {
  const HitTests& tests = host.hitTests();
  if (!tests.isLatest(hit)) return nullptr;
  Document* current = host.currentDocument();
  if (current != nullptr && current->serial() == tests.documentSerial()) return current;
  for (const auto& open : host.documents().all()) {
    if (open->document->serial() == tests.documentSerial()) return open->document.get();
  }
  return nullptr;
}

AIErr getHitData(Host& host, AIHitRef hit, AIHitData* data) {
  if (data == nullptr || documentOf(host, hit) == nullptr) return kBadParameterErr;
  data->hit = host.hitTests().hit() ? 1 : 0;
  return kNoErr;
}

AIErr getHitArt(Host& host, AIHitRef hit, AIArtHandle* art) {
  const Document* document = documentOf(host, hit);
  if (art == nullptr || document == nullptr) return kBadParameterErr;
  *art = artHandle(*document, host.hitTests().topmost(*document));
  return kNoErr;
}

}  // namespace

SuiteOffer hitTestSuite() {
  SuiteEntries entries(kAIHitTestSuite);
  static const AIHitTestSuite table{
      entries.add<hitTest>("HitTest"),
      entries.add<getHitData>("GetHitData"),
      entries.add<getHitArt>("GetHitArt"),
  };
  return entries.offer(kAIHitTestSuiteVersion, &table);
}

}  // namespace host
