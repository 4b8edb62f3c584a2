#include "Frames.h"

#include <QFrame>
#include <QStyleOption>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

void arrow(const Paint& paint, Qt::ArrowType way) {
  chevron(paint.painter, paint.option.rect, way, Measures(&paint.option, paint.widget).chevron(),
          Tones(paint.option).faceText);
}

QRect partOf(const Paint& paint, const QStyleOptionGroupBox& box, QStyle::SubControl part) {
  return paint.style.subControlRect(QStyle::CC_GroupBox, &box, part, paint.widget);
}

void groupTitle(const Paint& paint, const QStyleOptionGroupBox& box) {
  const QRect rect = partOf(paint, box, QStyle::SC_GroupBoxLabel);
  const int gap = Measures(&box, paint.widget).padding();
  paint.painter.fillRect(rect.adjusted(-gap, 0, gap, 0), box.palette.brush(QPalette::Window));
  const QColor asked = box.textColor;
  if (asked.isValid()) paint.painter.setPen(asked);
  paint.style.drawItemText(&paint.painter, rect, Qt::AlignCenter | Qt::TextShowMnemonic, box.palette,
                           isEnabled(box), box.text,
                           asked.isValid() ? QPalette::NoRole : QPalette::WindowText);
}

void groupCheck(const Paint& paint, const QStyleOptionGroupBox& box) {
  QStyleOptionButton check;
  check.QStyleOption::operator=(box);
  check.rect = partOf(paint, box, QStyle::SC_GroupBoxCheckBox);
  const int gap = Measures(&box, paint.widget).padding();
  paint.painter.fillRect(check.rect.adjusted(-gap, 0, gap, 0), box.palette.brush(QPalette::Window));
  paint.style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &check, &paint.painter, paint.widget);
}

}  // namespace

void viewFrame(const Paint& paint) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&paint.option);
  if (frame != nullptr && frame->lineWidth == 0) return;
  const Tones tones(paint.option);
  const bool active = showsRing(paint.option);
  outlineRounded(paint.painter, paint.option.rect, 1, active ? tones.ring : tones.outline);
}

void shapedFrame(const Paint& paint) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&paint.option);
  if (frame == nullptr || frame->frameShape == QFrame::NoFrame) return;
  const QRect rect = frame->rect;
  const Tones tones(*frame);
  const QColor line = mixed(tones.ground, tones.outline, 0.7);
  if (frame->frameShape == QFrame::HLine) {
    paint.painter.fillRect(rect.x(), rect.center().y(), rect.width(), 1, line);
  } else if (frame->frameShape == QFrame::VLine) {
    paint.painter.fillRect(rect.center().x(), rect.y(), 1, rect.height(), line);
  } else {
    viewFrame(paint);
  }
}

void windowFrame(const Paint& paint) {
  outlineRounded(paint.painter, paint.option.rect, 0, Tones(paint.option).outline);
}

void toolTipPanel(const Paint& paint) {
  paint.painter.fillRect(paint.option.rect, paint.option.palette.brush(QPalette::ToolTipBase));
  windowFrame(paint);
}

QRect groupFrame(const QStyleOptionGroupBox& box, const QWidget* widget) {
  const bool titled = !box.text.isEmpty() || (box.subControls & QStyle::SC_GroupBoxCheckBox) != 0;
  return titled ? box.rect.adjusted(0, Measures(&box, widget).text() / 2, 0, 0) : box.rect;
}

void groupBox(const Paint& paint) {
  const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(&paint.option);
  if (box == nullptr) return;
  const Tones tones(*box);
  const QRect frame = groupFrame(*box, paint.widget);
  if ((box->features & QStyleOptionFrame::Flat) != 0) {
    paint.painter.fillRect(frame.x(), frame.y(), frame.width(), 1, tones.outline);
  } else {
    outlineRounded(paint.painter, frame, Measures(box, paint.widget).radius(),
                   mixed(tones.ground, tones.outline, 0.7));
  }
  if ((box->subControls & QStyle::SC_GroupBoxCheckBox) != 0) groupCheck(paint, *box);
  if (!box->text.isEmpty()) groupTitle(paint, *box);
}

void splitter(const Paint& paint) {
  const Tones tones(paint.option);
  const QRect rect = paint.option.rect;
  const bool touched = isUnderPointer(paint.option) || isPressed(paint.option);
  const QColor colour = touched ? tones.ring : tones.line;
  if (rect.width() < rect.height()) {
    paint.painter.fillRect(rect.center().x(), rect.y(), 1, rect.height(), colour);
  } else {
    paint.painter.fillRect(rect.x(), rect.center().y(), rect.width(), 1, colour);
  }
}

void sizeGrip(const Paint& paint) {
  const auto* grip = qstyleoption_cast<const QStyleOptionSizeGrip*>(&paint.option);
  if (grip == nullptr) return;
  const PainterState state(paint.painter);
  paint.painter.setPen(QPen(Tones(*grip).outline, 1));
  const QRectF rect = QRectF(grip->rect).adjusted(1.5, 1.5, -1.5, -1.5);
  const bool left = grip->corner == Qt::BottomLeftCorner || grip->corner == Qt::TopLeftCorner;
  for (const double part : {0.25, 0.55, 0.85}) {
    const double side = std::min(rect.width(), rect.height()) * part;
    const double corner = left ? rect.left() : rect.right();
    paint.painter.drawLine(QPointF(corner + (left ? side : -side), rect.bottom()),
                           QPointF(corner, rect.bottom() - side));
  }
}

void rubberBand(const Paint& paint) {
  const Tones tones(paint.option);
  QColor veil = tones.accent;
  veil.setAlphaF(0.15);
  paint.painter.fillRect(paint.option.rect, veil);
  outlineRounded(paint.painter, paint.option.rect, 0, tones.accent);
}

void plainGround(const Paint& paint) {
  paint.painter.fillRect(paint.option.rect, paint.option.palette.brush(QPalette::Window));
}

void nothing(const Paint&) {}

void arrowUp(const Paint& paint) {
  arrow(paint, Qt::UpArrow);
}

void arrowDown(const Paint& paint) {
  arrow(paint, Qt::DownArrow);
}

void arrowLeft(const Paint& paint) {
  arrow(paint, Qt::LeftArrow);
}

void arrowRight(const Paint& paint) {
  arrow(paint, Qt::RightArrow);
}

}  // namespace host::look
