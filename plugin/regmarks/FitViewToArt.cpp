#include "FitViewToArt.h"

#include <algorithm>

#include "AIDocumentView.h"

namespace Vandrell::Corvane {
namespace {

bool LiesStrictlyInside(const AIRealRect& art, const AIRealRect& view) {
  return view.left < art.left && art.right < view.right && view.bottom < art.bottom && art.top < view.top;
}

}  // namespace

AIErr FitViewToArt(const AIRealRect& art, double extent) {
  AIDocumentViewHandle view = nullptr;
  AIRealRect shown;
  if (const AIErr error = sAIDocumentView->GetNthDocumentView(0, &view)) return error;
  if (const AIErr error = sAIDocumentView->GetDocumentViewBounds(view, &shown)) return error;
  if (LiesStrictlyInside(art, shown)) return kNoErr;

  const double wide = (art.right - art.left + 5 * extent) / (shown.right - shown.left);
  const double high = (art.top - art.bottom + 5 * extent) / (shown.top - shown.bottom);
  const AIRealPoint center{(art.left + art.right) / 2, (art.top + art.bottom) / 2};
  double zoom = 1.0;
  if (const AIErr error = sAIDocumentView->GetDocumentViewZoom(view, &zoom)) return error;
  if (const AIErr error = sAIDocumentView->SetDocumentViewCenter(view, &center)) return error;
  return sAIDocumentView->SetDocumentViewZoom(view, zoom / std::max(wide, high));
}

}  // namespace Vandrell::Corvane
