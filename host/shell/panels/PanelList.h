// The list that fills a panel of the application.
#pragma once

#include <QListView>
#include <functional>

namespace host {

// Dense rows of one height. Long texts end in dots.
class PanelList : public QListView {
 public:
  PanelList(const QString& accessibleName, QWidget* parent);

  // Called when the user asks for a menu, after the row under the pointer became the current one; where the
  // menu belongs on the screen.
  std::function<void(const QPoint&)> onMenu;
  // The user turned to another row by mouse or keys; not called for what the program does.
  std::function<void(int row)> onTurned;
  // Return, or a double click.
  std::function<void(int row)> onEntered;

  // By the program. -1: to none.
  void turnTo(int row);
  // By the program: keys go on from there, and nothing is chosen.
  void standAt(int row);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;  // with a line around it while keys go here
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  bool isTurning_ = false;
};

// Of any panel's row; `text` is the font that it is written in.
int panelRowHeight(const QFont& text);

}  // namespace host
