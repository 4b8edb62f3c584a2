#include "MenuBar.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <iterator>
#include <utility>

#include "Host.h"

namespace host {
namespace {

constexpr char kSeparatorText[] = "-";

// Plug-ins know no mnemonics, and no tab begins a shortcut.
QString literal(const std::string& text) {
  return QString::fromStdString(text).replace('&', "&&").replace('\t', ' ');
}

}  // namespace

MenuBar::MenuBar(QMenuBar& bar, Host& host, Commands commands)
    : bar_(bar), host_(host), commands_(std::move(commands)) {}

void MenuBar::setOwnItems(const std::string& group, QList<QAction*> actions) {
  ownItems_[group] = std::move(actions);
}

void MenuBar::refresh() {
  dropStale();
  for (const std::string& title : host_.menus().titles()) {
    QMenu& menu = *menuOf(title);
    if (menu.isVisible()) continue;  // the user is on his way in it
    fill(menu, host_.menus().groupsOfMenu(title));
    menu.menuAction()->setVisible(!menu.isEmpty());
  }
}

void MenuBar::dropStale() {
  const auto drop = [this](auto& made) {
    for (auto entry = made.begin(); entry != made.end();) {
      const bool isGone = host_.menus().items().find(entry->first) == nullptr;
      if (isGone) entry->second->deleteLater();
      entry = isGone ? made.erase(entry) : std::next(entry);
    }
  };
  drop(submenus_);
  drop(actions_);
}

QMenu* MenuBar::menuOf(const std::string& title) {
  QMenu*& menu = menus_[title];
  if (menu == nullptr) {
    menu = bar_.addMenu("&" + literal(title));
    QObject::connect(menu, &QMenu::aboutToShow, &bar_, [this, menu = menu, title] {
      const std::vector<AIMenuGroup> groups = host_.menus().groupsOfMenu(title);
      prepare(groups);
      fill(*menu, groups);
    });
  }
  return menu;
}

QMenu* MenuBar::submenuOf(const MenuItem& opener) {
  QMenu*& menu = submenus_[opener.handle];
  if (menu == nullptr) {
    menu = new QMenu(&bar_);
    QObject::connect(menu, &QMenu::aboutToShow, &bar_, [this, menu = menu, handle = opener.handle] {
      const std::vector<AIMenuGroup> groups = host_.menus().groupsOfSubmenu(handle);
      prepare(groups);
      fill(*menu, groups);
    });
  }
  return menu;
}

QAction* MenuBar::actionOf(const MenuItem& item) {
  QAction*& action = actions_[item.handle];
  if (action == nullptr) {
    action = new QAction(&bar_);
    QObject::connect(action, &QAction::triggered, &bar_,
                     [this, handle = item.handle] { commands_.choose(handle); });
  }
  return action;
}

void MenuBar::prepare(const std::vector<AIMenuGroup>& groups) {
  for (const AIMenuGroup handle : groups) {
    const std::vector<AIMenuItemHandle> items = host_.menus().groups().find(handle)->items;
    for (const AIMenuItemHandle item : items) {
      if (host_.menus().items().find(item)->wantsUpdate) commands_.update(item);
    }
  }
}

void MenuBar::fill(QMenu& menu, const std::vector<AIMenuGroup>& groups) {
  menu.clear();
  bool setOff = false;
  for (const AIMenuGroup handle : groups) {
    const MenuGroup& group = *host_.menus().groups().find(handle);
    if (group.items.empty() && ownItems_[group.name].isEmpty()) continue;
    if (setOff || group.separated) menu.addSeparator();
    menu.addActions(ownItems_[group.name]);
    addItems(menu, group);
    setOff = group.separated;
  }
}

void MenuBar::addItems(QMenu& menu, const MenuGroup& group) {
  for (const AIMenuItemHandle handle : group.items) addItem(menu, *host_.menus().items().find(handle));
}

void MenuBar::addItem(QMenu& menu, const MenuItem& item) {
  if (item.text == kSeparatorText) {
    menu.addSeparator();
    return;
  }
  const std::vector<AIMenuGroup> inside = host_.menus().groupsOfSubmenu(item.handle);
  QAction* action = inside.empty() ? actionOf(item) : submenuOf(item)->menuAction();
  if (!inside.empty()) fill(*submenuOf(item), inside);
  action->setText(literal(item.text));
  action->setEnabled(item.enabledIn(host_.menuState()));
  if (inside.empty()) {
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
  }
  menu.addAction(action);
}

}  // namespace host
