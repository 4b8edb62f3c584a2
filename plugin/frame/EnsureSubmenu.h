// Submenus that several plug-ins may share.
#pragma once

#include "AIMenu.h"

// Adds an item that opens the submenu `name`, shown as its translation, at the end of `nearGroup` (null:
// the host's "Tool Palettes"). A group of exactly this name that is there already is taken as it is:
// then nothing is added and `item` is null, with success. Throws ai::Error when the host refuses the text.
AIErr EnsureSubmenu(SPPluginRef plugin, const char* name, const char* nearGroup, std::int32_t options,
                    AIMenuItemHandle& item);
