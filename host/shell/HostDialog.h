// How the host asks its user something on behalf of a plug-in.
#pragma once

#include <QPointer>

class QDialog;
class QWidget;

namespace host {

// Owns a dialog, which may go earlier with its parent. While it is there no command reaches a plug-in.
class HostDialog {
 public:
  explicit HostDialog(QDialog* dialog);
  HostDialog(const HostDialog&) = delete;
  HostDialog& operator=(const HostDialog&) = delete;
  ~HostDialog();

  // What such a dialog is to stand over: a dialog that is up, else the host's window, else null.
  static QWidget* parent();

  // In the host's look. True if the user accepted it, and the dialog is then still there.
  bool accepted();

 private:
  QPointer<QDialog> dialog_;
};

}  // namespace host
