#include "FlyoutPopup.h"

#include <QMenu>
#include <utility>

namespace host {
namespace {

// Plug-ins know no mnemonics, and no tab begins a shortcut.
QString literal(const std::string& text) {
  return QString::fromStdString(text).replace('&', "&&").replace('\t', ' ');
}

}  // namespace

QMenu* makeFlyoutPopup(const FlyoutMenu& menu, QWidget* parent,
                       const std::function<void(std::uint32_t)>& choose) {
  auto* popup = new QMenu(parent);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  for (const FlyoutMenu::Item& item : menu.items) {
    if (item.isSeparator) {
      popup->addSeparator();
      continue;
    }
    QAction* action = popup->addAction(literal(item.text));
    action->setEnabled(item.enabled);
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
    QObject::connect(action, &QAction::triggered, parent, [choose, id = item.id] { choose(id); });
  }
  return popup;
}

}  // namespace host
