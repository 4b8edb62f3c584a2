// The document the user works on.
#pragma once

#include "AIDocument.h"

AIDocumentHandle GetCurrentDocument();  // null if none is open
bool HasDocument();

// Points in one document unit: what is stored in points, divided by this, is a length on the document.
// Ask anew on each use. 1 if the host gives none.
double GetDocumentScale();
