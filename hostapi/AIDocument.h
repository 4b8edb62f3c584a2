// The current document.
#pragma once

#include "AITypes.h"

struct AIDocumentSetup {
  AIReal width, height;  // of the page, document units
};

constexpr char kAIDocumentSuite[] = "AI Document Suite";
constexpr std::int32_t kAIDocumentSuiteVersion = 1019;

struct AIDocumentSuite {
  AIErr (*GetDocument)(AIDocumentHandle* document);  // kNoDocumentErr and null without one
  AIErr (*GetDocumentSetup)(AIDocumentSetup* setup);
  // The document coordinate system's origin in page coordinates: page minus this is document.
  AIErr (*GetDocumentOrigin)(AIRealPoint* origin);
  // Points in one document unit; 1 but for very large drawings.
  AIErr (*GetDocumentScale)(AIReal* scale);
};

extern const AIDocumentSuite* sAIDocument;
