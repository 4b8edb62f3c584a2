// Where the panels were last time, kept in the preferences.
#pragma once

#include <optional>
#include <string>

namespace host {

class Preferences;

// Lengths in units of the interface.
struct PanelPlace {
  bool isShown = false;
  bool floats = false;
  bool isCollapsed = false;   // to its title
  int area = 0;               // a Qt::DockWidgetArea
  int left = 0, top = 0;      // on the screen, of one that floats
  int width = 0, height = 0;  // of its view
};

// By the panel's identifier. Nullopt if nothing is known of it, or nothing that makes sense.
std::optional<PanelPlace> rememberedPlace(const Preferences& preferences, const std::string& identifier);
void rememberPlace(Preferences& preferences, const std::string& identifier, const PanelPlace& place);

}  // namespace host
