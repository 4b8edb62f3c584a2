// Where the picture of a drawing lies in a widget.
#pragma once

#include <QRectF>
#include <QSize>

#include "SvgPicture.h"

namespace host {

class View;

// In device pixels, y down. The picture's upper left corner and its size fall on whole ones, so that the
// edges of sheets are sharp and a picture can be used again wherever the drawing is moved to.
struct CanvasPlace {
  // Where `view` puts `bounds`, in a widget of this size in its own pixels, `ratio` device pixels each.
  CanvasPlace(const View& view, const AIRealRect& bounds, const QSize& widget, double ratio);

  double ratio;
  double x, y;           // of the upper left corner of the picture in the widget
  double width, height;  // of the whole picture
  double viewportWidth, viewportHeight;

  // The part of the picture that is seen, or is not farther off than `margin`. Of no size if there is none.
  PixelRect seen(double margin) const;
  // A part of the whole picture of `wholeWidth` by `wholeHeight`, in the pixels of the widget.
  QRectF inWidget(const PixelRect& part, double wholeWidth, double wholeHeight) const;
  QRectF inWidget(const PixelRect& part) const { return inWidget(part, width, height); }
};

bool isEmpty(const PixelRect& rect);
bool contains(const PixelRect& outer, const PixelRect& inner);

}  // namespace host
