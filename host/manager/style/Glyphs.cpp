#include "Glyphs.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

#include "Shapes.h"

namespace host::look {
namespace {

using Draw = void (*)(QPainter&, const QRectF&, const QColor&);

void window(QPainter& painter, const QRectF& box, const QColor& colour) {
  const double inset = box.width() * 0.25;
  outlineRounded(painter, box.adjusted(inset, inset, -inset, -inset), 1, colour);
}

void twoWindows(QPainter& painter, const QRectF& box, const QColor& colour) {
  const double part = box.width() / 8;
  outlineRounded(painter, box.adjusted(part * 3, part, -part, -part * 3), 1, colour);
  outlineRounded(painter, box.adjusted(part, part * 3, -part * 3, -part), 1, colour);
}

void moreToTheRight(QPainter& painter, const QRectF& box, const QColor& colour) {
  const double step = box.width() / 6;
  chevron(painter, box.adjusted(-step, 0, -step, 0), Qt::RightArrow, box.width() / 2, colour);
  chevron(painter, box.adjusted(step, 0, step, 0), Qt::RightArrow, box.width() / 2, colour);
}

// The shapes below carry a colour of their own, and white marks on it.
QRectF scaled(const QRectF& box, double x, double y, double width, double height) {
  return {box.x() + box.width() * x, box.y() + box.height() * y, box.width() * width, box.height() * height};
}

void exclamation(QPainter& painter, const QRectF& box, const QColor& colour) {
  fillRounded(painter, scaled(box, 0.455, 0.32, 0.09, 0.3), box.width() * 0.04, colour);
  fillRounded(painter, scaled(box, 0.45, 0.68, 0.1, 0.1), box.width() * 0.05, colour);
}

void information(QPainter& painter, const QRectF& box, const QColor&) {
  fillRounded(painter, scaled(box, 0.06, 0.06, 0.88, 0.88), box.width() / 2, QColor(0x2d, 0x72, 0xc4));
  fillRounded(painter, scaled(box, 0.45, 0.25, 0.1, 0.1), box.width() * 0.05, Qt::white);
  fillRounded(painter, scaled(box, 0.455, 0.42, 0.09, 0.33), box.width() * 0.04, Qt::white);
}

void question(QPainter& painter, const QRectF& box, const QColor&) {
  fillRounded(painter, scaled(box, 0.06, 0.06, 0.88, 0.88), box.width() / 2, QColor(0x2d, 0x72, 0xc4));
  const PainterState state(painter);
  QPainterPath hook(scaled(box, 0.37, 0.4, 0, 0).topLeft());
  hook.arcTo(scaled(box, 0.37, 0.26, 0.26, 0.26), 180, -225);
  hook.quadTo(scaled(box, 0.5, 0.53, 0, 0).topLeft(), scaled(box, 0.5, 0.62, 0, 0).topLeft());
  painter.setPen(QPen(Qt::white, box.width() * 0.085, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(hook);
  fillRounded(painter, scaled(box, 0.45, 0.7, 0.1, 0.1), box.width() * 0.05, Qt::white);
}

void warning(QPainter& painter, const QRectF& box, const QColor&) {
  const PainterState state(painter);
  const QColor amber(0xf0, 0xb4, 0x29);
  painter.setPen(QPen(amber, box.width() * 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(amber);
  painter.drawPolygon(
      QPolygonF({scaled(box, 0.5, 0.13, 0, 0).topLeft(), scaled(box, 0.9, 0.86, 0, 0).topLeft(),
                 scaled(box, 0.1, 0.86, 0, 0).topLeft()}));
  exclamation(painter, box, QColor(0x26, 0x26, 0x26));
}

void critical(QPainter& painter, const QRectF& box, const QColor&) {
  fillRounded(painter, scaled(box, 0.06, 0.06, 0.88, 0.88), box.width() / 2, QColor(0xc8, 0x33, 0x33));
  exclamation(painter, scaled(box, 0, -0.04, 1, 1), Qt::white);
}

class GlyphEngine : public QIconEngine {
 public:
  explicit GlyphEngine(Draw draw) : draw_(draw) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    draw_(
        *painter, rect,
        palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new GlyphEngine(draw_); }

 private:
  Draw draw_;
};

Draw drawingOf(QStyle::StandardPixmap which) {
  switch (which) {
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_DockWidgetCloseButton:
    case QStyle::SP_LineEditClearButton:
      return crossMark;
    case QStyle::SP_TitleBarMaxButton:
      return window;
    case QStyle::SP_TitleBarNormalButton:
      return twoWindows;
    case QStyle::SP_ToolBarHorizontalExtensionButton:
      return moreToTheRight;
    case QStyle::SP_MessageBoxInformation:
      return information;
    case QStyle::SP_MessageBoxQuestion:
      return question;
    case QStyle::SP_MessageBoxWarning:
      return warning;
    case QStyle::SP_MessageBoxCritical:
      return critical;
    default:
      return nullptr;
  }
}

}  // namespace

QIcon glyph(QStyle::StandardPixmap which) {
  const Draw draw = drawingOf(which);
  return draw != nullptr ? QIcon(new GlyphEngine(draw)) : QIcon();
}

}  // namespace host::look
