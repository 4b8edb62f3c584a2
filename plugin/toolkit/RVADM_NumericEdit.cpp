#include "RVADM_NumericEdit.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <algorithm>

#include "NumberSample.h"

namespace qRVADM {

// Some of the line's events, as a paste by the mouse, do not come by way of the field.
class RVADM_NumericEdit::Line : public QLineEdit {
 protected:
  bool event(QEvent* event) override {
    auto* const field = qobject_cast<RVADM_NumericEdit*>(parentWidget());  // null when that is going
    if (field == nullptr) return QLineEdit::event(event);
    return field->notice.After(*field, [this, event] { return QLineEdit::event(event); });
  }
};

// The handler hears of the action at its end, when it may delete the field.
template <typename Action>
void RVADM_NumericEdit::WithNoticeAfter(Action action) {
  notice.After(*this, [&action] {
    action();
    return true;
  });
}

RVADM_NumericEdit::RVADM_NumericEdit(RVADM_ItemParent* itemParent, bool reportsEachKey, int decimals,
                                     double minimum, double maximum, double step)
    : RVADM_QMetaObjectProxy(itemParent, kTextEditKind),
      immediate(reportsEachKey),
      controller([this] { return QAbstractSpinBox::text(); },
                 [this](const QString& shown) { WriteText(shown, true); },
                 [this](const QString& shown) { WriteText(shown, false); }, {0.0, kPointUnits}) {
  setLineEdit(new Line);
  setButtonSymbols(NoButtons);
  SetUnits(kNoUnits);
  SetMinimum(minimum);
  SetMaximum(maximum);
  if (decimals >= 0) widthDigits = DigitsOfRange(minimum, maximum, decimals);
  FitDecimals(decimals, step);
  SetFontKind(0);
  controller.SetGetDefault([this](ADMUnits wantedUnit) { return GetValue(wantedUnit); });
  controller.FormatImmediate();
  Connect();
  setFocusPolicy(Qt::StrongFocus);
}

void RVADM_NumericEdit::FitDecimals(int decimals, double step) {
  const bool isFine = decimals < 0 && step > 0 && step < 1;
  SetPrecision(isFine ? DecimalsOfStep(step) : decimals);
}

void RVADM_NumericEdit::Connect() {
  if (!immediate) {
    connect(this, SIGNAL(editingFinished()), SLOT(ParseAndCallOnNumericTextEditChanged()));
    return;
  }
  connect(this, SIGNAL(editingFinished()), &controller, SLOT(FormatImmediate()));
  connect(lineEdit(), SIGNAL(textEdited(const QString&)), this, SLOT(ParseAndCallOnNumericTextEditChanged()));
}

// --- value ---

double RVADM_NumericEdit::GetValue(ADMUnits wantedUnit) const {
  return ConvertDimension(controller.GetDimension(), wantedUnit);
}

void RVADM_NumericEdit::SetValue(ADMUnits valueUnit, double value) {
  controller.SetDimension({value, valueUnit});
}

void RVADM_NumericEdit::SetUnits(ADMUnits newUnit) {
  WithNoticeAfter([this, newUnit] {
    const bool wasKeptEmpty = IsKeptEmpty();
    unit = newUnit;
    controller.SetUnit(newUnit);
    if (wasKeptEmpty && !IsKeptEmpty()) lineEdit()->clear();
  });
}

void RVADM_NumericEdit::SetMinimum(double points) {
  controller.SetMinimum(points);
}

void RVADM_NumericEdit::SetMaximum(double points) {
  controller.SetMaximum(points);
}

double RVADM_NumericEdit::GetMinimum() const {
  return controller.GetMinimum();
}

void RVADM_NumericEdit::SetPrecision(int decimals) {
  controller.SetPrecision(decimals);
}

void RVADM_NumericEdit::SetKeepEmpty(bool keep) {
  keepEmpty = keep;
  if (!keep) controller.SetUnit(controller.GetDimension().unit);
}

// --- text ---

bool RVADM_NumericEdit::IsKeptEmpty() const {
  return keepEmpty && QAbstractSpinBox::text().isEmpty();
}

bool RVADM_NumericEdit::IsModified() const {
  return lineEdit()->isModified();
}

void RVADM_NumericEdit::SetModified(bool modified) {
  lineEdit()->setModified(modified);
}

void RVADM_NumericEdit::SetTextInt(const QString& shown) {
  WithNoticeAfter([this, &shown] {
    WriteText(shown, true);
    SetModified(false);
  });
}

void RVADM_NumericEdit::WriteSilently(const QString& shown) {
  const QSignalBlocker silence(lineEdit());
  lineEdit()->setText(shown);
}

void RVADM_NumericEdit::WriteText(const QString& shown, bool parseAfter) {
  WithNoticeAfter([this, &shown, parseAfter] {
    if (shown != QAbstractSpinBox::text()) {
      const bool modified = IsModified();
      WriteSilently(shown);
      SetModified(modified);
      if (immediate && parseAfter) controller.ParseImmediate();
      if (immediate) TellDialog();
    }
    if (hasFocus()) {
      selectAll();
    } else {
      lineEdit()->setCursorPosition(0);  // a long text shows its beginning
    }
  });
}

// --- the way to the dialog ---

void RVADM_NumericEdit::TellDialog() {
  CallDialogSlot("OnNumericTextEditChanged");
}

void RVADM_NumericEdit::ParseAndCallOnNumericTextEditChanged(bool forceFullParse) {
  WithNoticeAfter([this, forceFullParse] {
    if (immediate && !forceFullParse) {
      controller.ParseImmediate();
    } else {
      controller.Parse();
    }
    TellDialog();
  });
}

void RVADM_NumericEdit::Notify(int code) {
  if (!notice.Keeps(code)) RVADM_Item::Notify(code);
}

bool RVADM_NumericEdit::event(QEvent* event) {
  return notice.After(*this, [this, event] { return QAbstractSpinBox::event(event); });
}

// --- steps ---

void RVADM_NumericEdit::stepBy(int steps) {
  if (steps == 0) return;
  WithNoticeAfter([this, steps] { Step(steps); });
}

void RVADM_NumericEdit::Step(int steps) {
  controller.ParseImmediate();  // what has been typed counts
  const double before = ToPoints(controller.GetDimension());
  SetModified(true);
  controller.Step(StepsMeant(steps));
  if (!immediate && ToPoints(controller.GetDimension()) != before) TellDialog();
}

// Qt takes ten steps for each while a key is held that means something else here.
double RVADM_NumericEdit::StepsMeant(int steps) const {
  const Qt::KeyboardModifiers held = QGuiApplication::keyboardModifiers();
  const Qt::KeyboardModifiers accelerating(
      style()->styleHint(QStyle::SH_SpinBox_StepModifier, nullptr, this));
  const bool accelerated = !turnsPage && steps % 10 == 0 && (held & accelerating) != Qt::NoModifier;
  double meant = accelerated ? steps / 10 : steps;
  if (held.testFlag(Qt::ControlModifier)) meant *= 0.5;
  if (held.testFlag(Qt::ShiftModifier)) meant *= 10;
  return meant;
}

QAbstractSpinBox::StepEnabled RVADM_NumericEdit::stepEnabled() const {
  if (isReadOnly()) return StepNone;
  const double points = ToPoints(controller.GetDimension());
  StepEnabled enabled = StepNone;
  if (controller.GetMaximum() > points) enabled |= StepUpEnabled;
  if (points > controller.GetMinimum()) enabled |= StepDownEnabled;
  return enabled;
}

// --- size ---

void RVADM_NumericEdit::SetShowArrows(bool show) {
  const ButtonSymbols wanted = show ? UpDownArrows : NoButtons;
  if (wanted == buttonSymbols()) return;
  setButtonSymbols(wanted);
  resize(sizeHint());
}

QSize RVADM_NumericEdit::sizeHint() const {
  QSize hint = QAbstractSpinBox::sizeHint();
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const int frame = style()->pixelMetric(QStyle::PM_SpinBoxFrameWidth, &option, this);
  hint.setWidth(std::max(hint.width(), lineEdit()->sizeHint().width() + 2 * frame));
  if (widthDigits <= 0) return hint;
  constexpr int kRoomForCursor = 5;
  option.rect = QRect({0, 0}, hint);
  const QRect field = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, this);
  const QString sample = SampleNumber(widthDigits, controller.GetPrecision() > 0, unit);
  hint.setWidth(fontMetrics().horizontalAdvance(sample) + kRoomForCursor + hint.width() - field.width());
  return hint;
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_NumericEdit.cpp"
