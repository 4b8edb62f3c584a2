// A menu item of the host.
#pragma once

#include "AIMenu.h"

class HMX_AIPlugin;

class HMX_AIMenu {
 public:
  // Adds an item at the end of `group`, shown as the translation of `title`; one that begins with "-" is
  // a separator and stays as it is. The item's key is the title with "-" in place of every "/". A refusal
  // leaves `item` null and is not reported. `owner` is not owned. Throws ai::Error when the host refuses
  // the text.
  HMX_AIMenu(HMX_AIPlugin* owner, const char* group, const char* title, std::int32_t options);
  HMX_AIMenu(const HMX_AIMenu&) = delete;
  HMX_AIMenu& operator=(const HMX_AIMenu&) = delete;
  virtual ~HMX_AIMenu();  // leaves its table; the host's item stays

  virtual AIErr OnAdded();                             // was entered in the table
  virtual AIErr Go(const AIMenuMessage& message);      // was chosen
  virtual AIErr Update(const AIMenuMessage& message);  // is about to be shown

  AIMenuItemHandle item = nullptr;  // null: no message ever arrives
  HMX_AIPlugin* plugin;
};
