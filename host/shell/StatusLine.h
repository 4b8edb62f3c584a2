// What the status bar says of the current drawing, on its right.
#pragma once

#include <QObject>
#include <functional>

class QComboBox;
class QLabel;
class QStatusBar;
class QToolButton;

namespace host {

class DrawingView;
struct OpenDrawing;

class StatusLine : public QObject {
 public:
  // Puts its displays into `bar`, which must outlive it. `view` tells the view that the user sees; null:
  // none.
  StatusLine(QStatusBar& bar, std::function<DrawingView*()> view);

  // To be called after documents may have changed. What moves in the views it sees by itself.
  void refresh();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeZoom(QStatusBar& bar);
  void showZoom();
  void chooseZoom(const QString& text);
  void showArtboard(const OpenDrawing* drawing);
  void showRemarks(const OpenDrawing* drawing);

  std::function<DrawingView*()> view_;
  QComboBox* zoom_;
  QLabel* artboard_;
  QToolButton* remarks_;
};

}  // namespace host
