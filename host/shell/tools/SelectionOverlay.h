// Shows in a view what is selected.
#pragma once

#include <QImage>
#include <QPointer>
#include <QTimer>
#include <QTransform>

#include "SelectionOutlines.h"

class QWidget;

namespace host {

class DrawingView;

// Outlines, and squares at the corners of all that. Very many outlines are kept as a picture, which moves
// along with the view, and is made anew when the view has come to rest.
class SelectionOverlay {
 public:
  SelectionOverlay();

  // `extent` is that of all that is selected.
  void paint(DrawingView& view, const AIRealRect& extent, QPainter& painter);

 private:
  void paintMany(DrawingView& view, const QTransform& pixelsFromDocument, QPainter& painter);
  void makePicture(const DrawingView& view, const QTransform& pixelsFromDocument);

  SelectionOutlines outlines_;
  QImage picture_;            // of the whole view; null if there is none
  QTransform picturePlace_;   // pixels from document, as the picture was made
  QTransform lastPlace_;      // as the view was painted last
  QPointer<QWidget> moving_;  // the view that is yet to come to rest
  QTimer rest_;
};

}  // namespace host
