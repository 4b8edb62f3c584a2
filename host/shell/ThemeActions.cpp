#include "ThemeActions.h"

#include <QAction>
#include <QActionGroup>

namespace host {

QList<QAction*> makeThemeActions(QObject& owner, const std::function<void(Theme)>& choose) {
  auto* group = new QActionGroup(&owner);
  const std::pair<const char*, Theme> themes[] = {{"&Light", Theme::Light}, {"&Dark", Theme::Dark}};
  for (const auto& [text, chosen] : themes) {
    QAction* action = group->addAction(text);
    action->setCheckable(true);
    action->setChecked(chosen == theme());
    QObject::connect(action, &QAction::triggered, group, [choose, chosen = chosen] { choose(chosen); });
  }
  return group->actions();
}

}  // namespace host
