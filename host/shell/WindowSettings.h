// What the window remembers from run to run, among the preferences.
#pragma once

#include <QRect>
#include <optional>
#include <string>
#include <vector>

#include "DrawingExport.h"
#include "Theme.h"

namespace host {

class Preferences;

class WindowSettings {
 public:
  // `preferences` must outlive it.
  explicit WindowSettings(Preferences& preferences) : preferences_(preferences) {}

  Theme theme() const;
  void setTheme(Theme theme);
  std::string language() const;  // a tag such as "pt-BR"; empty: as the environment says
  void setLanguage(const std::string& language);
  bool showsRulers() const;
  void setShowsRulers(bool shows);
  int autosaveSeconds() const;  // 0: never

  ExportExtras exportExtras() const;
  void setExportExtras(const ExportExtras& extras);

  // Takes over what other windows of the user have chosen meanwhile.
  void catchUp();

  std::vector<std::string> recentFiles() const;  // absolute paths, the latest first
  void setRecentFiles(const std::vector<std::string>& files);

  // Of the window as it is when it does not fill the screen; in pixels of the desktop.
  std::optional<QRect> place() const;
  void setPlace(const QRect& place);
  bool isMaximized() const;
  void setMaximized(bool isMaximized);

 private:
  Preferences& preferences_;
};

}  // namespace host
