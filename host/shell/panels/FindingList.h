// The list of what a preflight found.
#pragma once

#include "PanelList.h"

namespace host {

// Rows as high as their sentences are long.
class FindingList : public PanelList {
 public:
  explicit FindingList(QWidget* parent);

  std::function<void()> onCheck;       // F5
  std::function<void(int by)> onStep;  // the arrows to the right and left: 1 and -1

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace host
