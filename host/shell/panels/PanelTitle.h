// The title of a panel, with the buttons for what can be done with it.
#pragma once

#include <QIcon>
#include <QWidget>
#include <functional>

class QLabel;

namespace host {

class PanelTitleButton;

class PanelTitle : public QWidget {
 public:
  struct Content {
    QString title;
    QIcon icon;  // may be null
    bool hasStates = false;
    bool hasMenu = false;
    bool isCollapsed = false;
    bool floats = false;
  };
  // What the buttons do.
  struct Commands {
    std::function<void()> changeState, openMenu, collapse, floatOrDock, close;
  };

  explicit PanelTitle(const Commands& commands);

  void show(const Content& content);
  // Where a menu belongs that opens from the title: its upper left corner on the screen.
  QPoint menuCorner() const;

 private:
  void showText(const QString& title);

  QLabel* icon_;
  QLabel* text_;
  PanelTitleButton* state_;
  PanelTitleButton* menu_;
  PanelTitleButton* collapse_;
  PanelTitleButton* float_;
  PanelTitleButton* close_;
};

}  // namespace host
