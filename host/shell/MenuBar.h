// The menus of the window, as the application and the plug-ins made them.
#pragma once

#include <QList>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "MenuTable.h"

class QAction;
class QMenu;
class QMenuBar;

namespace host {

class Host;

// Menus follow the host's menu table: items, their texts and their states are looked up anew whenever a menu
// is about to show. Must outlive the bar.
class MenuBar {
 public:
  // What is to be done for an item of a plug-in.
  struct Commands {
    std::function<void(AIMenuItemHandle)> update;  // just before it is shown, if it wants that
    std::function<void(AIMenuItemHandle)> choose;
  };

  MenuBar(QMenuBar& bar, Host& host, Commands commands);

  // The application's own items at the head of one of its groups. Not owned; they replace those before.
  void setOwnItems(const std::string& group, QList<QAction*> actions);
  // Fills all menus but those that are open. A menu in which nothing stands is not in the bar.
  void refresh();

 private:
  void dropStale();  // of items that are gone
  QMenu* menuOf(const std::string& title);
  QMenu* submenuOf(const MenuItem& opener);
  QAction* actionOf(const MenuItem& item);
  void prepare(const std::vector<AIMenuGroup>& groups);
  void fill(QMenu& menu, const std::vector<AIMenuGroup>& groups);
  void addItems(QMenu& menu, const MenuGroup& group);
  void addItem(QMenu& menu, const MenuItem& item);

  QMenuBar& bar_;
  Host& host_;
  Commands commands_;
  std::map<std::string, QList<QAction*>> ownItems_;  // by group
  std::map<std::string, QMenu*> menus_;              // by title
  std::map<AIMenuItemHandle, QMenu*> submenus_;
  std::map<AIMenuItemHandle, QAction*> actions_;
};

}  // namespace host
