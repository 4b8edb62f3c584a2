// The look of the field that is being edited.
#pragma once

#include <QObject>

class QWidget;

namespace host {

// While a field has the keyboard it wears the palette of active fields, and pictures in it show the icon in
// their property _rvadm_activeinputicon; the one to go back to stands in _rvadm_inactiveinputicon meanwhile.
// A picture is a child of the field with a Qt property "icon".
class ActiveFields : public QObject {
 public:
  using QObject::QObject;

  // Line edits and spin boxes; idle for all others.
  void watch(QWidget& widget);
  void release(QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace host
