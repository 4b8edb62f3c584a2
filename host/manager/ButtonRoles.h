// Push buttons whose role in a dialog is told after they were made.
#pragma once

#include <QObject>

class QWidget;

namespace host {

// A change of one of their properties _rvadm_isdefault and _rvadm_ismodalbutton measures and paints them
// anew.
class ButtonRoles : public QObject {
 public:
  using QObject::QObject;

  // Push buttons; idle for all others.
  void watch(QWidget& widget);
  void release(QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace host
