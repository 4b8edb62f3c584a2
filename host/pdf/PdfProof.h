// Whether a PDF file says what the drawing says.
#pragma once

#include <string>

#include "PdfExport.h"

namespace host {

// Reads the file as a stranger would and compares pages and their sizes, layers with order, state and steps,
// and every line in a spot colour. Empty, or a clause on the first difference, which names the object. Throws
// QPDFExc for bytes that are no PDF.
std::string proofOf(const std::string& pdf, const SvgDrawing& drawing, const PdfOptions& options);

// What to call an object in a sentence: by its name, its id, or its kind and line in the file.
std::string nameOfObject(const SvgDrawing& drawing, ArtId art);

}  // namespace host
