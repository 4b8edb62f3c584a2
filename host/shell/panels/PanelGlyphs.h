// The small signs in the rows of panels.
#pragma once

class QColor;
class QPainter;
class QPointF;

namespace host {

enum class PanelGlyph { Eye, ClosedEye, Lock, OpenLock, Pen, Square };

// Around `middle`, seven pixels to each side at most.
void drawPanelGlyph(QPainter& painter, const QPointF& middle, PanelGlyph glyph, const QColor& ink);

}  // namespace host
