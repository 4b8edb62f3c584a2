// Modal dialogs where nobody is there to see them.
#pragma once

#include <QObject>

class QWidget;

namespace host {

class Host;

// From construction to destruction every modal dialog that comes up is answered with its default button, or
// with Return where it has none. What it says counts as an alert, unless there are fields to fill in: those
// keep what they hold. One that stays up is cancelled in the end, which counts as an error.
class DialogAnswerer : public QObject {
 public:
  // One at a time. `host` must outlive this, and there must be an application.
  explicit DialogAnswerer(Host& host);
  ~DialogAnswerer() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Host& host_;
};

}  // namespace host
