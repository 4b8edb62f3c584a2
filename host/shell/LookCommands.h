// The commands of the menu View that say how the application looks and speaks.
#pragma once

#include <string>
#include <vector>

#include "LanguageSwitch.h"
#include "Theme.h"

class QActionGroup;
class QMenu;

namespace host {

struct WindowParts;

class LookCommands {
 public:
  // `language` is the tag of the one that the program was started in; empty: the environment's. `parts` must
  // outlive it.
  LookCommands(const WindowParts& parts, const std::string& language);

  // To be called after plug-ins may have been loaded.
  void refresh();

 private:
  void chooseTheme(Theme theme);
  void chooseLanguage(const std::string& language);
  void addLanguage(const QString& text, const std::string& tag);

  const WindowParts& parts_;
  LanguageSwitch language_;
  QMenu* languages_ = nullptr;
  QActionGroup* group_ = nullptr;
  std::vector<std::string> offered_;
};

}  // namespace host
