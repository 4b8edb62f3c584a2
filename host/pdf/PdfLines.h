// The lines of a page that a table follows or a printer plates apart: strokes and fills in spot colours.
#pragma once

#include <string>
#include <vector>

#include "Art.h"

class QPDFPageObjectHelper;

namespace host {

struct SvgDrawing;
class PdfChoice;

struct PdfLine {
  std::string layer;  // UTF-8
  std::string spot;
  bool isFill = false;
  bool overprints = false;
  double width = 0;  // points; 0 for a fill
  // Of its outline, without the width: points, y up, origin at the page's lower left corner.
  AIRealRect box{};
  double slack = 0;  // of a box that is meant, for lines that stand for dots: units of the page
  ArtId art = 0;     // whose line it is meant to be; 0 for one that was found
};

// As the document has them, on the page of an artboard, from the bottom up.
std::vector<PdfLine> linesMeant(const SvgDrawing& drawing, const PdfChoice& choice, std::size_t artboard);
// As they stand in the page's content and the groups it paints.
std::vector<PdfLine> linesFound(QPDFPageObjectHelper& page);

}  // namespace host
