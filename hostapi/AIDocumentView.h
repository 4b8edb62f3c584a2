// Views of the current document. View coordinates are pixels, y down.
#pragma once

#include "AITypes.h"

constexpr char kAIDocumentViewSuite[] = "AI Document View Suite";
constexpr std::int32_t kAIDocumentViewSuiteVersion = 1014;

// A null view is the current one.
struct AIDocumentViewSuite {
  AIErr (*GetNthDocumentView)(std::int32_t index, AIDocumentViewHandle* view);
  AIErr (*GetDocumentViewBounds)(AIDocumentViewHandle view, AIRealRect* bounds);  // document units
  AIErr (*GetDocumentViewZoom)(AIDocumentViewHandle view, AIReal* zoom);          // 1: one pixel a point
  // The host keeps the zoom between 1/10000 and 640; a value that is not above 0 is kBadParameterErr.
  AIErr (*SetDocumentViewZoom)(AIDocumentViewHandle view, AIReal zoom);
  AIErr (*SetDocumentViewCenter)(AIDocumentViewHandle view, const AIRealPoint* center);
  AIErr (*ArtworkPointToViewPoint)(AIDocumentViewHandle view, const AIRealPoint* artwork,
                                   AIRealPoint* viewPixels);
};

extern const AIDocumentViewSuite* sAIDocumentView;
