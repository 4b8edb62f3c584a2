// The current document.
#pragma once

#include "AITypes.h"

struct AIDocumentSetup {
  AIReal width, height;  // of the page, document units
};

// What the rulers of a document count in.
enum AIRulerUnits : std::int16_t {
  kUnknownRuler = 0,
  kInchRuler = 1,
  kCentimeterRuler = 2,
  kPointRuler = 3,
  kPicaRuler = 4,
  kMillimeterRuler = 5,
  kPixelRuler = 6,  // one is a point
  kQRuler = 7,
  kFootRuler = 8,
  kMeterRuler = 9,
  kYardRuler = 10,
  kFootAndInchRuler = 11,
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
  // An AIRulerUnits. A drawing's own unit of length, or points if it has none of paper. kNoDocumentErr, with
  // `units` as it was, without a document.
  AIErr (*GetDocumentRulerUnits)(std::int16_t* units);
};

extern const AIDocumentSuite* sAIDocument;
