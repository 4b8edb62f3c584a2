// A view of a drawing between its rulers.
#pragma once

#include <QWidget>
#include <functional>

#include "AIDocument.h"

class QLabel;

namespace host {

class DrawingView;
class Ruler;
class ViewEvents;
struct OpenDrawing;

class CanvasFrame : public QWidget {
 public:
  // `chooseUnits` is called when the user chooses what the rulers are to count in. The drawing and `events`
  // must outlive the frame.
  CanvasFrame(OpenDrawing& drawing, ViewEvents& events, std::function<void(AIRulerUnits)> chooseUnits);

  DrawingView& view() const { return *view_; }
  void showRulers(bool shown);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;  // of the rulers; views have none

 private:
  void refreshRulers();

  DrawingView* view_;
  Ruler* top_;
  Ruler* left_;
  QLabel* corner_;
  std::function<void(AIRulerUnits)> chooseUnits_;
};

}  // namespace host
