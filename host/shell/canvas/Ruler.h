// A ruler at the edge of a view.
#pragma once

#include <QWidget>
#include <optional>

#include "RulerTicks.h"

namespace host {

class Document;
class DrawingView;
class View;

// Counts in the units of the view's document, in its coordinates, and marks where the pointer is. The view
// must outlive it.
class Ruler : public QWidget {
 public:
  // Horizontal: over the view, as wide as it. Vertical: left of it, as high.
  Ruler(Qt::Orientation orientation, const DrawingView& view);

  // To be called when the view shows something else, or counts in something else.
  void refresh() { update(); }
  // Pixels of the view; nullopt: not over it.
  void markPointer(const std::optional<QPointF>& pointer);

  static int thickness();  // pixels: enough for its numbers, and for the mark of a unit in the corner

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintTicks(QPainter& painter) const;
  QRect placeOfMark(double along) const;
  double length() const;

  const Qt::Orientation orientation_;
  const DrawingView& view_;
  std::optional<double> pointer_;  // along the ruler
};

// What a ruler counts along an edge of the view of a document.
RulerSpan rulerSpan(Qt::Orientation orientation, const View& view, const Document& document);

// The small font of rulers and what stands round them.
QFont rulerFont();

}  // namespace host
