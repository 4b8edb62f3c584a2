// The lines of a page that a table follows or a printer plates apart: strokes in spot colours.
#pragma once

#include <string>
#include <vector>

#include "Art.h"

class QPDFPageObjectHelper;

namespace host {

struct SvgDrawing;

struct PdfLine {
  std::string layer;  // UTF-8
  std::string spot;
  bool overprints = false;
  double width = 0;  // points
  AIRealRect
      box{};      // of its outline, without the width: points, y up, origin at the page's lower left corner
  ArtId art = 0;  // whose line it is meant to be; 0 for one that was found
};

// As the document has them, on the page of an artboard, from the bottom up.
std::vector<PdfLine> linesMeant(const SvgDrawing& drawing, std::size_t artboard);
// As they stand in the page's content.
std::vector<PdfLine> linesFound(QPDFPageObjectHelper& page);

}  // namespace host
