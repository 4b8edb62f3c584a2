// A place of the tool palette.
#pragma once

#include <QToolButton>
#include <functional>
#include <vector>

#include "AITool.h"

class QMenu;

namespace host {

struct PaletteTool {
  AIToolHandle handle;
  QString title;
  QString tooltip;
  QIcon icon;
};

// Shows one tool of a group and offers the others in a menu: by a long press, by the arrow in the corner and
// by the keys of menus. Which tool is selected is not the place's to decide: it shows what it is told.
class ToolPlace : public QToolButton {
 public:
  struct Commands {
    std::function<void(AIToolHandle)> choose;
    std::function<void(AIToolHandle)> editOptions;  // by a double click or Return
  };

  // `keys` choose the tool and, when it is chosen already, the next one of the group.
  ToolPlace(const QKeySequence& keys, Commands commands);

  // The tools of the group, at least one, one of which is `visible`; `selected` may be none of them.
  void show(const std::vector<PaletteTool>& tools, AIToolHandle visible, AIToolHandle selected);

 protected:
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  bool hasTools(const std::vector<PaletteTool>& tools) const;
  void fillMenu(const std::vector<PaletteTool>& tools);
  void showTool(const PaletteTool& tool);
  void chooseByKeys();
  bool isArrow(const QPoint& point) const;

  const QKeySequence keys_;
  Commands commands_;
  std::vector<AIToolHandle> tools_;
  AIToolHandle visible_ = nullptr;
  QMenu* menu_;
};

}  // namespace host
