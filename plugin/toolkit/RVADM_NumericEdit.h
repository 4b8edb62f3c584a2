// A field for a number with its unit, with or without arrows.
#pragma once

#include <QAbstractSpinBox>

#include "DimensionController.h"
#include "NoticeAfterEvent.h"
#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

// Shows a plain number until it gets units. The user's action is complete when the field is left, Return
// pressed or the number stepped, if that changed something; in an immediate field it is each key. Arrows,
// arrow keys and wheel step to whole numbers of the unit, ten times as far with Shift, half as far with
// Control. What can't be read gives way to the last number, what is out of range to the limit.
class RVADM_NumericEdit : public RVADM_QMetaObjectProxy<RVADM_Item, QAbstractSpinBox> {
  Q_OBJECT

 public:
  // Limits in points. `decimals` below 0: as many as the unit has by default, or as `step` needs if that is
  // below 1; otherwise the field also becomes as wide as the numbers between the limits. `step` does nothing
  // else.
  RVADM_NumericEdit(RVADM_ItemParent* itemParent, bool immediate, int decimals, double minimum,
                    double maximum, double step);

  double GetValue(ADMUnits wantedUnit) const;
  // Held within the limits. A NaN changes nothing. Not the user's action.
  void SetValue(ADMUnits valueUnit, double value);
  void SetUnits(ADMUnits newUnit);  // keeps the length
  // In points; they count from the next change of the value on.
  void SetMinimum(double points);
  void SetMaximum(double points);
  double GetMinimum() const;
  void SetPrecision(int decimals);  // below 0: what the unit has by default
  // An empty field stays empty, though it still has its value, until the user types a number.
  void SetKeepEmpty(bool keep);
  void SetShowArrows(bool show);
  // Has the user changed the text since the dialog was last told?
  bool IsModified() const;
  void SetModified(bool modified);

  void Notify(int code) override;
  void SetTextInt(const QString& shown) override;  // an immediate field takes over the value at once

  QSize sizeHint() const override;
  void stepBy(int steps) override;

 public Q_SLOTS:
  // `forceFullParse`: even an immediate field shows what it has read.
  void ParseAndCallOnNumericTextEditChanged(bool forceFullParse = false);

 protected:
  StepEnabled stepEnabled() const override;
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  class Line;

  void Connect();
  void FitDecimals(int decimals, double step);
  void WriteText(const QString& shown, bool parseAfter);
  void WriteSilently(const QString& shown);
  void TellDialog();
  void Step(int steps);
  double StepsMeant(int steps) const;
  void EndEditing(QKeyEvent* event, bool onPalette);
  bool IsKeptEmpty() const;
  template <typename Action>
  void WithNoticeAfter(Action action);

  NoticeAfterEvent notice;
  ADMUnits unit = kNoUnits;
  bool keepEmpty = false;
  const bool immediate;
  int widthDigits = -1;    // the size hint makes room for; none if not above 0
  QString savedText;       // at focus-in
  bool turnsPage = false;  // while a key is handled that steps by tens of its own
  DimensionController controller;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
