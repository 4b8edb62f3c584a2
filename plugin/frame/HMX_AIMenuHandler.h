// The plug-in's menu items.
#pragma once

#include <memory>
#include <vector>

#include "HMX_AIMenu.h"

class HMX_AIMenuHandler {
 public:
  HMX_AIMenuHandler() = default;
  HMX_AIMenuHandler(const HMX_AIMenuHandler&) = delete;
  HMX_AIMenuHandler& operator=(const HMX_AIMenuHandler&) = delete;
  virtual ~HMX_AIMenuHandler();  // destroys all menus, the last one first

  AIErr Add(HMX_AIMenu* menu);     // calls OnAdded; takes ownership unless the menu is here already
  AIErr Remove(HMX_AIMenu* menu);  // gives up ownership; kMenuNotFoundErr if it is not here

  // Hands a message of the menu caller to the menu it is for. Its result, or 0 if it is nobody's.
  AIErr HandleMessage(const char* caller, const char* selector, const void* message);

 private:
  std::vector<std::unique_ptr<HMX_AIMenu>>::iterator Find(const HMX_AIMenu* menu);

  std::vector<std::unique_ptr<HMX_AIMenu>> menus;
};
