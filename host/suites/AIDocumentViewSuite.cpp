#include "AIDocumentView.h"

#include <cmath>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

// Why there is no such view.
AIErr missing(AIDocumentViewHandle view) {
  return view == nullptr ? kNoDocumentErr : kBadParameterErr;
}

void changed(Host& host, const OpenDocument& open) {
  if (host.onViewChange) host.onViewChange(open);
}

AIErr getNthDocumentView(Host& host, std::int32_t index, AIDocumentViewHandle* view) {
  if (view == nullptr) return kBadParameterErr;
  const OpenDocument* current = host.documents().current();
  if (current == nullptr) return kNoDocumentErr;
  if (index != 0) return kNoSuchItemErr;
  *view = current->viewHandle();
  return kNoErr;
}

AIErr getDocumentViewBounds(Host& host, AIDocumentViewHandle view, AIRealRect* bounds) {
  if (bounds == nullptr) return kBadParameterErr;
  const OpenDocument* open = findView(host, view);
  if (open == nullptr) return missing(view);
  *bounds = open->view.bounds();
  return kNoErr;
}

AIErr getDocumentViewZoom(Host& host, AIDocumentViewHandle view, AIReal* zoom) {
  if (zoom == nullptr) return kBadParameterErr;
  const OpenDocument* open = findView(host, view);
  if (open == nullptr) return missing(view);
  *zoom = open->view.zoom();
  return kNoErr;
}

AIErr setDocumentViewZoom(Host& host, AIDocumentViewHandle view, AIReal zoom) {
  OpenDocument* open = findView(host, view);
  if (open == nullptr) return missing(view);
  if (!std::isfinite(zoom) || zoom <= 0) return kBadParameterErr;
  open->view.setZoom(zoom);
  changed(host, *open);
  return kNoErr;
}

AIErr setDocumentViewCenter(Host& host, AIDocumentViewHandle view, const AIRealPoint* center) {
  if (center == nullptr || !std::isfinite(center->x) || !std::isfinite(center->y)) return kBadParameterErr;
  OpenDocument* open = findView(host, view);
  if (open == nullptr) return missing(view);
  open->view.setCenter(*center);
  changed(host, *open);
  return kNoErr;
}

AIErr artworkPointToViewPoint(Host& host, AIDocumentViewHandle view, const AIRealPoint* artwork,
                              AIRealPoint* viewPixels) {
  if (artwork == nullptr || viewPixels == nullptr) return kBadParameterErr;
  const OpenDocument* open = findView(host, view);
  if (open == nullptr) return missing(view);
  *viewPixels = open->view.toPixels(*artwork);
  return kNoErr;
}

}  // namespace

SuiteOffer documentViewSuite() {
  SuiteEntries entries(kAIDocumentViewSuite);
  static const AIDocumentViewSuite table{
      entries.add<getNthDocumentView>("GetNthDocumentView"),
      entries.add<getDocumentViewBounds>("GetDocumentViewBounds"),
      entries.add<getDocumentViewZoom>("GetDocumentViewZoom"),
      entries.add<setDocumentViewZoom>("SetDocumentViewZoom"),
      entries.add<setDocumentViewCenter>("SetDocumentViewCenter"),
      entries.add<artworkPointToViewPoint>("ArtworkPointToViewPoint"),
  };
  return entries.offer(kAIDocumentViewSuiteVersion, &table);
}

}  // namespace host
