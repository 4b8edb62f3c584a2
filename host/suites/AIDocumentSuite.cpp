#include "AIDocument.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

// The page is the active artboard; its lower left corner is the origin of page coordinates.
AIRealRect pageOf(const Document& document) {
  const DocumentState& state = document.state();
  return state.activeArtboard < state.artboards.size() ? state.artboards[state.activeArtboard].position
                                                       : AIRealRect{};
}

AIErr getDocument(Host& host, AIDocumentHandle* document) {
  if (document == nullptr) return kBadParameterErr;
  const OpenDocument* current = host.documents().current();
  *document = current == nullptr ? nullptr : current->handle();
  return current == nullptr ? kNoDocumentErr : kNoErr;
}

AIErr getDocumentSetup(Host& host, AIDocumentSetup* setup) {
  if (setup == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  const AIRealRect page = pageOf(*document);
  *setup = {page.right - page.left, page.top - page.bottom};
  return kNoErr;
}

AIErr getDocumentOrigin(Host& host, AIRealPoint* origin) {
  if (origin == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  const AIRealRect page = pageOf(*document);
  *origin = {0 - page.left, 0 - page.bottom};
  return kNoErr;
}

AIErr getDocumentScale(Host& host, AIReal* scale) {
  if (scale == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  *scale = document->scale();
  return kNoErr;
}

AIErr getDocumentRulerUnits(Host& host, std::int16_t* units) {
  if (units == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  *units = document->rulerUnits();
  return kNoErr;
}

}  // namespace

SuiteOffer documentSuite() {
  SuiteEntries entries(kAIDocumentSuite);
  static const AIDocumentSuite table{
      entries.add<getDocument>("GetDocument"),
      entries.add<getDocumentSetup>("GetDocumentSetup"),
      entries.add<getDocumentOrigin>("GetDocumentOrigin"),
      entries.add<getDocumentScale>("GetDocumentScale"),
      entries.add<getDocumentRulerUnits>("GetDocumentRulerUnits"),
  };
  return entries.offer(kAIDocumentSuiteVersion, &table);
}

}  // namespace host
