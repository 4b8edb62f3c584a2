// The answer to one modal dialog.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

namespace host {

class Host;

// Answers once the dialog runs, tries again while it stays up, and goes when it is gone. A dialog over it
// must be answered first.
class DialogAnswer : public QObject {
 public:
  // `host` must outlive this.
  DialogAnswer(Host& host, QWidget& dialog, QObject* parent);

  bool isFor(const QWidget& dialog) const { return dialog_ == &dialog; }
  void startAnew();  // the dialog has come up again

 private:
  void step();
  void say();
  void act();

  Host& host_;
  QPointer<QWidget> dialog_;
  QTimer timer_;
  int tries_ = 0;
  bool acting_ = false;  // what the last try set off is still at work
};

}  // namespace host
