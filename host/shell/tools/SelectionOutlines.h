// The lines that show what is selected.
#pragma once

#include <QPolygonF>
#include <QTransform>
#include <cstdint>
#include <vector>

#include "Document.h"

class QPainter;

namespace host {

// The outlines of paths and the bounds of other art. Curves are drawn as finely as one magnification needs.
class SelectionOutlines {
 public:
  // Of what is selected in the document as it stands, for so many pixels a document unit.
  void make(const Document& document, double pixelsPerUnit);

  bool areOf(const Document& document) const;
  bool areFineFor(double pixelsPerUnit) const;  // and not much finer
  std::size_t pointCount() const { return pointCount_; }

  // Of those that reach into `visible`, in pixels.
  void paint(QPainter& painter, const QTransform& pixelsFromDocument, const QRectF& visible) const;

 private:
  struct Outline {
    QRectF bounds;
    QPolygonF line;
  };

  void add(const Document& document, ArtId id);
  void add(QPolygonF line);

  std::uint32_t serial_ = 0;  // 0: of no document yet
  std::uint64_t revision_ = 0;
  std::uint64_t selectionRevision_ = 0;
  double fineness_ = 0;            // in document units
  std::vector<Outline> outlines_;  // document coordinates
  std::size_t pointCount_ = 0;
};

}  // namespace host
