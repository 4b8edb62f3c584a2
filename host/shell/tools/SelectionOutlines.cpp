#include "SelectionOutlines.h"

#include <QPainter>
#include <cmath>
#include <utility>

#include "Bounds.h"
#include "Geometry.h"
#include "SelectionColor.h"

namespace host {
namespace {

constexpr double kFinenessInPixels = 0.35;

// The same until the magnification has doubled or halved.
double finenessFor(double pixelsPerUnit) {
  return kFinenessInPixels / std::exp2(std::ceil(std::log2(pixelsPerUnit)));
}

// Without points that are too close to the one before to be seen.
QPolygonF thinned(const std::vector<AIRealPoint>& points, double fineness) {
  QPolygonF line;
  for (const AIRealPoint& point : points) {
    const QPointF next(point.x, point.y);
    const bool isLast = &point == &points.back();
    if (line.isEmpty() || isLast || (next - line.back()).manhattanLength() >= fineness) line << next;
  }
  return line;
}

bool touch(const QRectF& a, const QRectF& b) {  // flat ones too
  return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

}  // namespace

void SelectionOutlines::make(const Document& document, double pixelsPerUnit) {
  serial_ = document.serial();
  revision_ = document.revision();
  selectionRevision_ = document.selectionRevision();
  fineness_ = finenessFor(pixelsPerUnit);
  outlines_.clear();
  pointCount_ = 0;
  for (const ArtId id : document.selection()) add(document, id);
}

bool SelectionOutlines::areOf(const Document& document) const {
  return serial_ == document.serial() && revision_ == document.revision() &&
         selectionRevision_ == document.selectionRevision();
}

bool SelectionOutlines::areFineFor(double pixelsPerUnit) const {
  return fineness_ == finenessFor(pixelsPerUnit);
}

void SelectionOutlines::add(const Document& document, ArtId id) {
  const Art& art = *document.art(id);
  if (art.type == kPathArt) return add(thinned(flatten(*art.path, fineness_, false), 2 * fineness_));
  for (ArtId part = art.firstChild; part != 0; part = document.art(part)->below) add(document, part);
  if (art.type == kCompoundPathArt) return;
  const AIRealRect box = artBounds(document, id, nullptr, kNoStrokeBounds);
  if (!isEmpty(box)) add(QPolygonF(QRectF(QPointF(box.left, box.bottom), QPointF(box.right, box.top))));
}

void SelectionOutlines::add(QPolygonF line) {
  if (line.isEmpty()) return;
  pointCount_ += static_cast<std::size_t>(line.size());
  const QRectF bounds = line.boundingRect();
  outlines_.push_back({bounds, std::move(line)});
}

void SelectionOutlines::paint(QPainter& painter, const QTransform& pixelsFromDocument,
                              const QRectF& visible) const {
  const QRectF seen = pixelsFromDocument.inverted().mapRect(visible.adjusted(-1, -1, 1, 1));
  painter.save();
  painter.setPen(QPen(QColor(kSelectionColor), 0));
  painter.setTransform(pixelsFromDocument, true);
  for (const Outline& outline : outlines_) {
    if (touch(outline.bounds, seen)) painter.drawPolyline(outline.line);
  }
  painter.restore();
}

}  // namespace host
