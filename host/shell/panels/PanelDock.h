// A panel in the main window: docked at an edge, or floating over it.
#pragma once

#include <QDockWidget>
#include <functional>

#include "AITypes.h"
#include "PanelHolder.h"
#include "PanelPlaces.h"
#include "PanelTitle.h"

class QMainWindow;

namespace host {

class Host;
struct PanelRecord;

class PanelDock : public QDockWidget {
 public:
  // Hidden, of the size that the panel has at least. Becomes the window's; `view` stays the caller's.
  // `onChange` is called when the panel's title, place or visibility has changed.
  PanelDock(QMainWindow& window, Host& host, const PanelRecord& panel, QWidget& view,
            std::function<void()> onChange);

  AIPanelRef panel() const { return panel_; }

  // Puts it where it was last time, and shows it soon if it was shown then and the plug-in says nothing else.
  void comeBack(const PanelPlace& place);
  PanelPlace place();

  void setShown(bool shown);
  bool isShown() const { return isShown_; }
  void setViewSize(QSize size);
  QSize viewSize() const { return holder_->viewSize(); }
  void moveTo(QPoint corner);  // if it floats, or has no place of last time
  // To be called when the panel's record or the theme has changed.
  void refresh();
  // Without a panel from here on; to be deleted soon.
  void panelGone();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  PanelRecord* record() const;  // null if the panel is gone
  PanelTitle::Commands commands();
  void openMenu();
  void collapse(bool isCollapsed);
  void floatingChanged();
  void takeRoom();

  QMainWindow& window_;
  Host& host_;
  AIPanelRef panel_;
  std::function<void()> onChange_;
  PanelTitle* title_;
  PanelHolder* holder_;
  bool isShown_ = false;
  bool wasToldToShow_ = false;  // or to hide, since it is there
  bool hasPlace_ = false;       // of last time, or by the user's will
};

}  // namespace host
