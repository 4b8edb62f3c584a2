#include "Fields.h"

#include <QComboBox>
#include <QLineEdit>
#include <QStyleOption>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

// A field shows where typing goes, however the keyboard came there.
void fieldPanel(const Paint& paint, const Tones& tones) {
  const bool active = isEnabled(paint.option) && (paint.option.state & QStyle::State_HasFocus) != 0 &&
                      (paint.option.state & QStyle::State_ReadOnly) == 0;
  const QColor outline =
      isUnderPointer(paint.option) ? mixed(tones.outline, tones.text, 0.25) : tones.outline;
  framed(paint.painter, paint.option.rect, Measures(&paint.option, paint.widget).radius() * 0.8, tones.field,
         active ? tones.accent : outline, active ? 2 : 1);
}

struct StepButton {
  QStyle::SubControl part;
  QAbstractSpinBox::StepEnabledFlag step;
  Qt::ArrowType way;
};

void stepButton(const Paint& paint, const QStyleOptionSpinBox& box, const StepButton& button) {
  const QRect rect = paint.style.subControlRect(QStyle::CC_SpinBox, &box, button.part, paint.widget);
  if (rect.isEmpty()) return;
  const bool works = isEnabled(box) && (box.stepEnabled & button.step) != 0;
  const QColor text = box.palette.color(works ? QPalette::Active : QPalette::Disabled, QPalette::Text);
  if (works && box.activeSubControls == button.part) {
    QColor veil = text;
    veil.setAlphaF(isPressed(box) ? 0.25 : isUnderPointer(box) ? 0.12 : 0);
    fillRounded(paint.painter, rect, 1, veil);
  }
  chevron(paint.painter, rect, button.way, Measures(&box, paint.widget).chevron() * 0.85, text);
}

// An editable list looks like the field that is in it.
QPalette paletteOf(const QStyleOptionComboBox& option, const QWidget* widget) {
  const auto* box = qobject_cast<const QComboBox*>(widget);
  return box != nullptr && box->lineEdit() != nullptr ? box->lineEdit()->palette() : option.palette;
}

// A list that is open looks pressed.
void facePanel(const Paint& paint, const Tones& tones) {
  const Measures measures(&paint.option, paint.widget);
  QStyleOption shown = paint.option;
  if ((shown.state & QStyle::State_On) != 0) shown.state |= QStyle::State_Sunken;
  framed(paint.painter, paint.option.rect, measures.radius(), reacting(tones.face, tones.faceText, shown),
         tones.outline);
  if (showsRing(paint.option)) {
    outlineRounded(paint.painter, paint.option.rect, measures.radius(), tones.ring, 2);
  }
}

}  // namespace

void lineEditPanel(const Paint& paint) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&paint.option);
  if (frame == nullptr) return;
  if (frame->lineWidth > 0) return fieldPanel(paint, Tones(*frame));
  paint.painter.fillRect(frame->rect, frame->palette.brush(QPalette::Base));
}

void spinBox(const Paint& paint) {
  const auto* box = qstyleoption_cast<const QStyleOptionSpinBox*>(&paint.option);
  if (box == nullptr) return;
  if (box->frame) fieldPanel(paint, Tones(*box));
  if (box->buttonSymbols == QAbstractSpinBox::NoButtons) return;
  stepButton(paint, *box, {QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow});
  stepButton(paint, *box, {QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow});
}

void comboBox(const Paint& paint) {
  const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(&paint.option);
  if (box == nullptr) return;
  QPalette palette = paletteOf(*box, paint.widget);
  palette.setCurrentColorGroup(box->palette.currentColorGroup());
  const Tones tones(palette);
  if (box->editable) {
    fieldPanel(paint, tones);
  } else if (box->frame) {
    facePanel(paint, tones);
  }
  const QRect arrow =
      paint.style.subControlRect(QStyle::CC_ComboBox, box, QStyle::SC_ComboBoxArrow, paint.widget);
  chevron(paint.painter, arrow, Qt::DownArrow, Measures(box, paint.widget).chevron(),
          palette.color(box->editable ? QPalette::Text : QPalette::ButtonText));
}

}  // namespace host::look
