// A picture of the window as it stands on the screen, with its dialogs and floating panels.
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>

class QWidget;

namespace host {

// Takes the picture once everything is shown, from whatever event loop runs then, that of a modal dialog too.
// Dialogs are cancelled afterwards, and at last the application is told to quit.
class WindowPicture : public QObject {
 public:
  // Waits from here on. `window` must outlive this.
  explicit WindowPicture(QWidget& window);

  const QImage& image() const { return image_; }  // null until it was taken

 private:
  void step();
  bool isShown();
  void cancelDialog();

  QWidget& window_;
  QTimer timer_;
  QElapsedTimer sinceStart_;
  QImage image_;
  int quietSteps_ = 0;
  int cancels_ = 0;
};

}  // namespace host
