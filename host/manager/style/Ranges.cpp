#include "Ranges.h"

#include <QSlider>
#include <QStyleOption>
#include <algorithm>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

constexpr double kGroove = 3;  // pixels across

QRectF grooveOf(const Paint& paint, const QStyleOptionSlider& slider, const QRectF& handle) {
  const QRectF all =
      paint.style.subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderGroove, paint.widget);
  if (slider.orientation == Qt::Horizontal) {
    return {all.x(), handle.center().y() - kGroove / 2, all.width(), kGroove};
  }
  return {handle.center().x() - kGroove / 2, all.y(), kGroove, all.height()};
}

// The part of the groove on the side of the smallest value.
QRectF travelled(const QStyleOptionSlider& slider, QRectF groove, const QRectF& handle) {
  if (slider.orientation == Qt::Horizontal) {
    slider.upsideDown ? groove.setLeft(handle.center().x()) : groove.setRight(handle.center().x());
  } else {
    slider.upsideDown ? groove.setTop(handle.center().y()) : groove.setBottom(handle.center().y());
  }
  return groove;
}

QRectF tickAt(const QStyleOptionSlider& slider, double along, double length, bool before) {
  const QRectF rect = slider.rect;
  if (slider.orientation == Qt::Horizontal) {
    return {along, before ? rect.top() : rect.bottom() - length, 1, length};
  }
  return {before ? rect.left() : rect.right() - length, along, length, 1};
}

void ticks(const Paint& paint, const QStyleOptionSlider& slider, int handleLength) {
  const int step = slider.tickInterval > 0 ? slider.tickInterval : std::max(slider.pageStep, 1);
  const bool level = slider.orientation == Qt::Horizontal;
  const int room = (level ? slider.rect.width() : slider.rect.height()) - handleLength;
  const QColor colour = Tones(slider).outline;
  const double length = Measures(&slider, paint.widget).text() / 4.0;
  if (room <= 0 || (slider.maximum - slider.minimum) / step > room) return;
  for (qint64 value = slider.minimum; value <= slider.maximum; value += step) {
    const int along =
        handleLength / 2 + QStyle::sliderPositionFromValue(slider.minimum, slider.maximum,
                                                           static_cast<int>(value), room, slider.upsideDown);
    if ((slider.tickPosition & QSlider::TicksAbove) != 0) {
      paint.painter.fillRect(tickAt(slider, along, length, true), colour);
    }
    if ((slider.tickPosition & QSlider::TicksBelow) != 0) {
      paint.painter.fillRect(tickAt(slider, along, length, false), colour);
    }
  }
}

void sliderHandle(const Paint& paint, const QRectF& handle, const Tones& tones) {
  const double side = std::min(handle.width(), handle.height());
  const QRectF disc(handle.center().x() - side / 2, handle.center().y() - side / 2, side, side);
  const bool ring = showsRing(paint.option);
  framed(paint.painter, disc, side / 2, reacting(tones.face, tones.faceText, paint.option),
         ring ? tones.ring : mixed(tones.outline, tones.text, 0.15), ring ? 2 : 1);
}

QRectF donePart(const QStyleOptionProgressBar& bar) {
  QRectF done = QRectF(bar.rect).adjusted(1, 1, -1, -1);
  const bool level = (bar.state & QStyle::State_Horizontal) != 0;
  const double range = static_cast<double>(bar.maximum) - bar.minimum;
  const double share = range > 0 ? (static_cast<double>(bar.progress) - bar.minimum) / range : 1;
  const double left = (level ? done.width() : done.height()) * (1 - std::clamp(share, 0.0, 1.0));
  const bool mirrored = level && bar.direction == Qt::RightToLeft;
  if (level) {
    bar.invertedAppearance != mirrored ? done.setLeft(done.left() + left)
                                       : done.setRight(done.right() - left);
  } else {
    bar.invertedAppearance ? done.setBottom(done.bottom() - left) : done.setTop(done.top() + left);
  }
  return done;
}

}  // namespace

void slider(const Paint& paint) {
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&paint.option);
  if (slider == nullptr) return;
  const Tones tones(*slider);
  const QRectF handle =
      paint.style.subControlRect(QStyle::CC_Slider, slider, QStyle::SC_SliderHandle, paint.widget);
  const QRectF groove = grooveOf(paint, *slider, handle);
  if (slider->tickPosition != QSlider::NoTicks) {
    ticks(paint, *slider,
          static_cast<int>(slider->orientation == Qt::Horizontal ? handle.width() : handle.height()));
  }
  fillRounded(paint.painter, groove, kGroove / 2, tones.outline);
  fillRounded(paint.painter, travelled(*slider, groove, handle), kGroove / 2, tones.accent);
  sliderHandle(paint, handle, tones);
}

QRect scrollThumb(const QStyleOptionSlider& bar, int shortest) {
  const bool level = bar.orientation == Qt::Horizontal;
  const int length = level ? bar.rect.width() : bar.rect.height();
  const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
  const qint64 whole = std::max<qint64>(range + bar.pageStep, 1);
  const int wanted =
      range == 0 ? length : static_cast<int>(bar.pageStep * static_cast<qint64>(length) / whole);
  const int thumb = std::min(std::max(wanted, shortest), length);
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    length - thumb, bar.upsideDown);
  if (level) return {bar.rect.x() + start, bar.rect.y(), thumb, bar.rect.height()};
  return {bar.rect.x(), bar.rect.y() + start, bar.rect.width(), thumb};
}

void scrollBar(const Paint& paint) {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&paint.option);
  if (bar == nullptr) return;
  const Tones tones(*bar);
  paint.painter.fillRect(bar->rect, mixed(tones.ground, tones.groove, 0.5));
  if (!isEnabled(*bar) || bar->maximum <= bar->minimum) return;
  const QRectF rect =
      paint.style.subControlRect(QStyle::CC_ScrollBar, bar, QStyle::SC_ScrollBarSlider, paint.widget);
  const QRectF thumb = rect.adjusted(2, 2, -2, -2);
  const bool touched = bar->activeSubControls == QStyle::SC_ScrollBarSlider;
  const double share = touched && isPressed(*bar) ? 0.6 : touched && isUnderPointer(*bar) ? 0.48 : 0.34;
  fillRounded(paint.painter, thumb, std::min(thumb.width(), thumb.height()) / 2,
              mixed(tones.ground, tones.text, share));
}

void progressGroove(const Paint& paint) {
  const Tones tones(paint.option);
  framed(paint.painter, paint.option.rect, Measures(&paint.option, paint.widget).radius(), tones.field,
         tones.outline);
}

void progressContents(const Paint& paint) {
  const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&paint.option);
  if (bar == nullptr) return;
  const Tones tones(*bar);
  fillRounded(paint.painter, donePart(*bar), Measures(bar, paint.widget).radius() * 0.7,
              bar->maximum > bar->minimum ? tones.accent : mixed(tones.field, tones.accent, 0.5));
}

void progressLabel(const Paint& paint) {
  const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&paint.option);
  if (bar == nullptr || !bar->textVisible) return;
  const QRectF done = donePart(*bar);
  const PainterState state(paint.painter);
  paint.painter.setPen(bar->palette.color(QPalette::Text));
  paint.painter.drawText(bar->rect, Qt::AlignCenter | Qt::TextSingleLine, bar->text);
  paint.painter.setClipRect(done);
  fillRounded(paint.painter, done, Measures(bar, paint.widget).radius() * 0.7, Tones(*bar).accent);
  paint.painter.setPen(bar->palette.color(QPalette::HighlightedText));
  paint.painter.drawText(bar->rect, Qt::AlignCenter | Qt::TextSingleLine, bar->text);
}

}  // namespace host::look
