// The sheets that a drawing lies on.
#pragma once

#include <QPalette>
#include <QRectF>
#include <QString>
#include <vector>

class QPainter;

namespace host {

struct CanvasPlace;
class Document;

struct Sheet {
  QRectF place;  // pixels of the view
  QString name;
  bool isActive = false;
};

// The artboards of a document whose picture lies at `place`.
std::vector<Sheet> sheetsAt(const CanvasPlace& place, const Document& document);

QColor pasteboardColour(const QPalette& palette);
// What lies below the drawing: the pasteboard, and white sheets with their shadows.
void paintSheets(QPainter& painter, const QRectF& view, const std::vector<Sheet>& sheets,
                 const QPalette& palette);
// What lies over it: their edges and, if there are several, their names.
void paintSheetEdges(QPainter& painter, const QRectF& view, const std::vector<Sheet>& sheets,
                     const QPalette& palette);

}  // namespace host
