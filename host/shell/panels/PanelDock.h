// A panel in the main window: docked at an edge, or floating over it.
#pragma once

#include <QDockWidget>
#include <functional>
#include <optional>

#include "PanelHolder.h"
#include "PanelPlaces.h"
#include "PanelTitle.h"

class QAction;
class QMainWindow;

namespace host {

class PanelDock : public QDockWidget {
 public:
  // What is said of the panel around its view.
  struct Face {
    QString title;
    QIcon icon;  // may be null
    bool hasStates = false;
    bool hasMenu = false;
    PanelHolder::Limits limits;
  };

  // Docked and hidden, its view of the least size. Becomes the window's; `view` stays the caller's. The
  // identifier is what the place is remembered by. `onChange` is called when the place or the visibility has
  // changed.
  PanelDock(QMainWindow& window, const std::string& identifier, const Face& face, QWidget& view,
            std::function<void()> onChange);

  std::string identifier() const { return objectName().toStdString(); }

  // Puts it where it was last time, and shows it soon if it was shown then and nobody says anything else.
  void comeBack(const PanelPlace& place);
  PanelPlace place();

  void setShown(bool shown);
  bool isShown() const { return isShown_; }
  void setViewSize(QSize size);
  QSize viewSize() const { return holder_->viewSize(); }
  // If it floats. A panel that has no place of last time stays docked, where it covers no art, and goes there
  // when the user first lets it float.
  void moveTo(QPoint corner);
  void collapse(bool isCollapsed);
  // For a menu: shows or hides the panel. The caller's.
  QAction* makeAction(QObject& parent);
  // To be called when what it shows of itself, or the theme, has changed.
  virtual void refresh() = 0;

 protected:
  void closeEvent(QCloseEvent* event) override;

  void showFace(const Face& face);
  QPoint menuCorner() const { return title_->menuCorner(); }
  void changed() { onChange_(); }
  void goAway();  // for good

  // What the subclass does about its buttons and about what happens to the view.
  virtual bool isAlive() const { return true; }  // false: is to show itself no more
  virtual void changeState() {}
  virtual void openMenu() {}
  virtual void viewResized() {}
  virtual void shownOrHidden(bool) {}

 private:
  PanelTitle::Commands commands();
  void floatOrDock();
  void floatingChanged();
  void takeRoom();

  QMainWindow& window_;
  std::function<void()> onChange_;
  PanelTitle* title_;
  PanelHolder* holder_;
  bool isResizable_ = false;
  bool isShown_ = false;
  bool wasToldToShow_ = false;  // or to hide, since it is there
  bool hasPlace_ = false;       // of last time, or by the user's will
  std::optional<QPoint> firstCorner_;
};

}  // namespace host
