// The plug-in: line types and register marks for a cutting table.
#pragma once

#include <cstdint>

#include "AIMenu.h"
#include "HMX_AIPlugin.h"

namespace Vandrell::Corvane {

class CorvaneLayerMenu;
class CorvaneLegalNoticesMenu;
class CorvaneMenu;
class CorvanePreferencesMenu;
class CutLayerDialog;
class CutTool;

class CutPlugin : public HMX_AIPlugin {
 public:
  // `message` is the startup message. When startupError stays 0 the suites are held from now on, for the
  // life of the process, and the menus stand.
  explicit CutPlugin(const SPMessageData& message);

  // Set from the moment the resources are located; good until the shutdown message.
  static CutPlugin* GetInstance();

  AIErr OnAppStartup() override;
  AIErr OnAppShutdown() override;

  CutLayerDialog* GetLayerDialog() const { return layerDialog; }  // null while there is no palette
  // The mark tool of a shape, 0 round and 1 cross. Null where there is none.
  CutTool* GetTool(std::int64_t index) const;

 private:
  AIErr Start(const SPMessageData& message);
  AIErr RequestStartupSuites();
  void MakeTools();
  void MakeMenus();

  CutTool* tools[2] = {};                  // these belong to the table of tools
  AIMenuItemHandle submenuItem = nullptr;  // opens the plug-in's submenu; null if it was there already
  CorvaneMenu* marksMenu = nullptr;        // these belong to the table of menus
  CorvaneLayerMenu* layerMenu = nullptr;
  CorvanePreferencesMenu* preferencesMenu = nullptr;
  CorvaneLegalNoticesMenu* legalNoticesMenu = nullptr;
  HMX_AINotifier* documentChangedNotifier = nullptr;  // these belong to the table of notifiers
  HMX_AINotifier* selectedLineTypesNotifier = nullptr;
  HMX_AINotifier* colorSchemeNotifier = nullptr;
  CutLayerDialog* layerDialog = nullptr;  // belongs to the dialogs
};

}  // namespace Vandrell::Corvane
