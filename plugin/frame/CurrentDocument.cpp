#include "CurrentDocument.h"

AIDocumentHandle GetCurrentDocument() {
  AIDocumentHandle document = nullptr;
  return sAIDocument->GetDocument(&document) == kNoErr ? document : nullptr;
}

bool HasDocument() {
  return GetCurrentDocument() != nullptr;
}

double GetDocumentScale() {
  AIReal scale = 1.0;
  return sAIDocument->GetDocumentScale(&scale) == kNoErr ? scale : 1.0;
}
