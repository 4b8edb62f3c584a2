#include "PanelTitleButton.h"

#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace host {
namespace {

constexpr int kSide = 18;  // pixels
constexpr qreal kStroke = 1.3;

QPainterPath lines(std::initializer_list<QLineF> all) {
  QPainterPath path;
  for (const QLineF& line : all) {
    path.moveTo(line.p1());
    path.lineTo(line.p2());
  }
  return path;
}

QPainterPath boxes(std::initializer_list<QRectF> all) {
  QPainterPath path;
  for (const QRectF& box : all) path.addRect(box);
  return path;
}

// Around the origin, five pixels to each side.
QPainterPath outlineOf(PanelTitleButton::Glyph glyph) {
  using Glyph = PanelTitleButton::Glyph;
  switch (glyph) {
    case Glyph::State:  // up and down
      return lines({{-3, -1.5, 0, -4.5}, {0, -4.5, 3, -1.5}, {-3, 1.5, 0, 4.5}, {0, 4.5, 3, 1.5}});
    case Glyph::Menu:
      return lines({{-4, -3, 4, -3}, {-4, 0, 4, 0}, {-4, 3, 4, 3}});
    case Glyph::Collapse:
      return lines({{-4, 2, 0, -2}, {0, -2, 4, 2}});
    case Glyph::Expand:
      return lines({{-4, -2, 0, 2}, {0, 2, 4, -2}});
    case Glyph::Float:  // a window before another
      return boxes({{-4, -1.5, 5.5, 5.5}}) +
             lines({{-1.5, -1.5, -1.5, -4}, {-1.5, -4, 4, -4}, {4, -4, 4, 1.5}, {4, 1.5, 1.5, 1.5}});
    case Glyph::Dock:  // a window with a column at its edge
      return boxes({{-4, -4, 8, 8}, {1, -4, 3, 8}});
    case Glyph::Close:
      return lines({{-3.5, -3.5, 3.5, 3.5}, {-3.5, 3.5, 3.5, -3.5}});
  }
  return {};
}

}  // namespace

PanelTitleButton::PanelTitleButton(Glyph glyph) : glyph_(glyph) {
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
}

void PanelTitleButton::show(Glyph glyph, const QString& text) {
  glyph_ = glyph;
  setToolTip(text.toHtmlEscaped());
  setAccessibleName(text);
  update();
}

QSize PanelTitleButton::sizeHint() const {
  return {kSide, kSide};
}

void PanelTitleButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ToolButton, option);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), kStroke, Qt::SolidLine, Qt::RoundCap));
  painter.translate(QRectF(rect()).center());
  painter.drawPath(outlineOf(glyph_));
}

}  // namespace host
