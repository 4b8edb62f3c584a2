#include "LookCommands.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>

#include "AINotifier.h"
#include "MenuBar.h"
#include "Session.h"
#include "ThemeActions.h"
#include "WindowParts.h"
#include "WindowSettings.h"

namespace host {

LookCommands::LookCommands(const WindowParts& parts, const std::string& language)
    : parts_(parts),
      language_(parts.host, parts.session, language,
                [this](const std::vector<std::string>& complaints) {
                  parts_.refresh();
                  parts_.tell(complaints);
                }),
      languages_(new QMenu("&Language", &parts.window)),
      group_(new QActionGroup(languages_)) {
  QList<QAction*> items = makeThemeActions(parts.window, [this](Theme theme) { chooseTheme(theme); });
  items << languages_->menuAction();
  parts.menus.setOwnItems("View Theme", items);
}

// At once, whatever dialog is open.
void LookCommands::chooseTheme(Theme theme) {
  setTheme(theme);
  parts_.settings.setTheme(theme);
  parts_.session.notify(kAIUIBrightnessChangedNotifier);
  parts_.refresh();
  parts_.store();
}

void LookCommands::chooseLanguage(const std::string& language) {
  parts_.settings.setLanguage(language);
  parts_.store();
  language_.choose(language);
}

void LookCommands::refresh() {
  std::vector<std::string> offered = language_.offered();
  if (offered == offered_) return;
  offered_ = std::move(offered);
  for (QAction* action : group_->actions()) action->deleteLater();  // one of them may be at work right now
  languages_->clear();
  addLanguage("&System", {});
  languages_->addSeparator();
  for (const std::string& tag : offered_) addLanguage(QString::fromStdString(nameOfLanguage(tag)), tag);
}

void LookCommands::addLanguage(const QString& text, const std::string& tag) {
  QAction* action = languages_->addAction(text);
  action->setCheckable(true);
  action->setChecked(tag == language_.chosen());
  group_->addAction(action);
  QObject::connect(action, &QAction::triggered, languages_, [this, tag] { chooseLanguage(tag); });
}

}  // namespace host
