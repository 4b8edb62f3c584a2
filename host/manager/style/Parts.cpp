// Where the parts of complex controls lie.
#include <QSlider>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "Frames.h"
#include "Measures.h"
#include "PluginWidgets.h"
#include "Ranges.h"
#include "Sizes.h"

namespace host::look {
namespace {

QRect comboPart(const QStyleOptionComboBox& box, QStyle::SubControl part, const Measures& measures) {
  const QRect rect = box.rect;
  const int arrow = measures.arrowArea();
  const int side = box.editable ? measures.padding() / 2 + 1 : measures.sidePadding();
  switch (part) {
    case QStyle::SC_ComboBoxArrow:
      return {rect.right() + 1 - arrow, rect.y(), arrow, rect.height()};
    case QStyle::SC_ComboBoxEditField:
      return rect.adjusted(side, 2, -arrow, -2);
    default:
      return rect;
  }
}

QRect spinPart(const QStyleOptionSpinBox& box, QStyle::SubControl part, const Measures& measures) {
  const bool buttons = box.buttonSymbols != QAbstractSpinBox::NoButtons;
  const int frame = box.frame ? 2 : 0;
  const int width = buttons ? measures.spinArea() : 0;
  const QRect inner = box.rect.adjusted(frame, frame, -frame, -frame);
  const int left = inner.right() + 1 - width;
  const int half = inner.height() / 2;
  switch (part) {
    case QStyle::SC_SpinBoxUp:
      return buttons ? QRect(left, inner.y(), width, half) : QRect();
    case QStyle::SC_SpinBoxDown:
      return buttons ? QRect(left, inner.y() + half, width, inner.height() - half) : QRect();
    case QStyle::SC_SpinBoxEditField:
      return inner.adjusted(measures.padding() / 2, 0, -width, 0);
    default:
      return box.rect;
  }
}

QRect scrollPart(const QStyleOptionSlider& bar, QStyle::SubControl part, const Measures& measures) {
  const QRect thumb = scrollThumb(bar, 2 * measures.text());
  const bool level = bar.orientation == Qt::Horizontal;
  QRect rest = bar.rect;
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return thumb;
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    case QStyle::SC_ScrollBarSubPage:
      level ? rest.setRight(thumb.left() - 1) : rest.setBottom(thumb.top() - 1);
      return rest;
    case QStyle::SC_ScrollBarAddPage:
      level ? rest.setLeft(thumb.right() + 1) : rest.setTop(thumb.bottom() + 1);
      return rest;
    default:
      return {};
  }
}

// Marks on one side push the handle to the other.
QRect sliderPart(const QStyleOptionSlider& slider, QStyle::SubControl part, const Measures& measures) {
  const QRect rect = slider.rect;
  const bool level = slider.orientation == Qt::Horizontal;
  const int handle = std::min(measures.sliderHandle(), level ? rect.height() : rect.width());
  const int spare = (level ? rect.height() : rect.width()) - handle;
  const bool above = (slider.tickPosition & QSlider::TicksAbove) != 0;
  const bool below = (slider.tickPosition & QSlider::TicksBelow) != 0;
  const int across = above == below ? spare / 2 : above ? spare : 0;
  const int room = (level ? rect.width() : rect.height()) - handle;
  const int along = QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, slider.sliderPosition,
                                                    room, slider.upsideDown);
  switch (part) {
    case QStyle::SC_SliderHandle:
      return level ? QRect(rect.x() + along, rect.y() + across, handle, handle)
                   : QRect(rect.x() + across, rect.y() + along, handle, handle);
    case QStyle::SC_SliderGroove:
      return level ? QRect(rect.x(), rect.y() + across, rect.width(), handle)
                   : QRect(rect.x() + across, rect.y(), handle, rect.height());
    default:
      return rect;
  }
}

// Dialogs of plug-ins leave room for the title themselves; in others it is not part of the contents.
QRect groupContents(const QStyleOptionGroupBox& box, const QWidget* widget, const Measures& measures) {
  if (widget != nullptr && isInPluginDialog(*widget)) return box.rect;
  const bool titled = groupFrame(box, widget) != box.rect;
  return box.rect.adjusted(1, titled ? measures.text() : 1, -1, -1);
}

QRect groupPart(const QStyleOptionGroupBox& box, QStyle::SubControl part, const QWidget* widget,
                const Measures& measures) {
  const int check = (box.subControls & QStyle::SC_GroupBoxCheckBox) != 0 ? measures.indicator() : 0;
  const int checkRoom = check > 0 ? check + measures.sidePadding() : 0;
  const int start = box.rect.x() + measures.buttonPadding();
  const QSize text = box.fontMetrics.size(Qt::TextShowMnemonic, box.text);
  switch (part) {
    case QStyle::SC_GroupBoxFrame:
      return groupFrame(box, widget);
    case QStyle::SC_GroupBoxContents:
      return groupContents(box, widget, measures);
    case QStyle::SC_GroupBoxCheckBox:
      return {start, box.rect.y() + (measures.text() - check) / 2, check, check};
    case QStyle::SC_GroupBoxLabel:
      return {start + checkRoom, box.rect.y(),
              std::min(text.width(), box.rect.width() - 2 * measures.buttonPadding() - checkRoom),
              measures.text()};
    default:
      return box.rect;
  }
}

template <typename Option, typename... Rest>
std::optional<QRect> placed(const QStyleOptionComplex& option, QRect (*place)(const Option&, Rest...),
                            Rest... rest) {
  const auto* typed = qstyleoption_cast<const Option*>(&option);
  if (typed == nullptr) return std::nullopt;
  return QStyle::visualRect(option.direction, option.rect, place(*typed, rest...));
}

}  // namespace

std::optional<QRect> partOf(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                            QStyle::SubControl part, const QWidget* widget) {
  const Measures measures(&option, widget);
  switch (control) {
    case QStyle::CC_ComboBox:
      return placed<QStyleOptionComboBox, QStyle::SubControl, const Measures&>(option, comboPart, part,
                                                                               measures);
    case QStyle::CC_SpinBox:
      return placed<QStyleOptionSpinBox, QStyle::SubControl, const Measures&>(option, spinPart, part,
                                                                              measures);
    case QStyle::CC_GroupBox:
      return placed<QStyleOptionGroupBox, QStyle::SubControl, const QWidget*, const Measures&>(
          option, groupPart, part, widget, measures);
    case QStyle::CC_ScrollBar:
    case QStyle::CC_Slider:  // whose options say themselves which end is which
      if (const auto* range = qstyleoption_cast<const QStyleOptionSlider*>(&option)) {
        return control == QStyle::CC_Slider ? sliderPart(*range, part, measures)
                                            : scrollPart(*range, part, measures);
      }
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace host::look
