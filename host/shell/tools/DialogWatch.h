// Whether a modal dialog has come up.
#pragma once

#include <QObject>

namespace host {

// From construction to destruction; there must be an application.
class DialogWatch : public QObject {
 public:
  DialogWatch();

  bool hasSeen() const { return hasSeen_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool hasSeen_ = false;
};

}  // namespace host
