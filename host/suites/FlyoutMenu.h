// A menu that opens from the title of a panel.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace host {

struct FlyoutMenu {
  struct Item {
    bool isSeparator = false;
    std::uint32_t id = 0;  // no two items of a menu share one; of no meaning for a separator
    std::string text;      // UTF-8
    bool enabled = true;
    bool checked = false;
  };
  std::vector<Item> items;  // from the top down

  Item* find(std::uint32_t id) {  // null if there is none
    for (Item& item : items) {
      if (!item.isSeparator && item.id == id) return &item;
    }
    return nullptr;
  }
};

}  // namespace host
