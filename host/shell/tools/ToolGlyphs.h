// Drawings of the application's own tools, as icons and as cursors.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPainterPath>

class QColor;

namespace host {

// Filled outlines in a square of this side, y down, non-zero winding.
constexpr int kGlyphSide = 20;
QPainterPath arrowGlyph();
QPainterPath handGlyph();
QPainterPath magnifierGlyph();
QPainterPath magnifierInGlyph();   // with a plus
QPainterPath magnifierOutGlyph();  // with a minus
constexpr QPoint kLensMiddle{8, 8};

// In single and double resolution.
QIcon glyphIcon(const QPainterPath& glyph, const QColor& ink);
// Black with a white edge. `ratio`: device pixels a pixel.
QCursor glyphCursor(const QPainterPath& glyph, const QPoint& hotSpot, double ratio);

}  // namespace host
