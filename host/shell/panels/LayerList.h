// The rows of the layers under the user's hands.
#pragma once

#include "PanelList.h"

namespace host {

// Rows are dragged by their title, or moved with Alt and the arrow keys. The model is a LayerModel.
class LayerList : public PanelList {
 public:
  struct Commands {
    std::function<void(int row)> toggleVisible;
    std::function<void(int row)> toggleOthers;  // the eye with Alt
    std::function<void(int row)> toggleLocked;
    std::function<void(int row, int place)> move;  // to this place among the other rows
  };

  LayerList(QWidget* parent, Commands commands);

  void rename(int row);  // by the user, in its place

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void pressSign(const QModelIndex& index, const QMouseEvent& event);
  void moveBy(int rows);
  int gapAt(int y) const;
  void endDrag();

  Commands commands_;
  QPoint pressedAt_;
  int pressed_ = -1;  // the row whose title is held; -1: none
  int gap_ = -1;      // the row above which it would be put down; -1: it is not dragged
};

}  // namespace host
