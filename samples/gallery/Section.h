// A part of the gallery: a titled group with items in it.
#pragma once

#include <utility>
#include <vector>

#include "RVADM_Group.h"

namespace gallery {

// The items belong to the dialog, as does the group.
class Section {
 public:
  Section(qRVADM::RVADM_ItemParent* itemParent, const char* title);  // translated
  Section(const Section&) = delete;
  Section& operator=(const Section&) = delete;
  virtual ~Section() = default;

  qRVADM::RVADM_Group* GetGroup() const { return group; }
  // Places the items in the group where it stands, and fits the group to them.
  virtual void LayoutItems() = 0;
  // False if the item is none of the section's. It may be gone afterwards.
  virtual bool OnItemNotify(qRVADM::RVADM_Item* item) = 0;
  void SetVisible(bool visible);

 protected:
  // Enters an item, which the dialog owns, in the section.
  template <typename Item>
  Item* Adopt(Item* item) {
    items.push_back(item);
    return item;
  }
  template <typename Item, typename... Arguments>
  Item* Make(Arguments&&... arguments) {
    return Adopt(new Item(parent, std::forward<Arguments>(arguments)...));
  }
  void Delete(qRVADM::RVADM_Item* item);
  // Of the group, below its title.
  qRVADM::ADMRect GetInnerRect() const;
  // One below the other from the group's upper left corner; the group is fitted to them.
  void Stack(const std::vector<qRVADM::RVADM_Item*>& stacked);
  void FitGroup();

  qRVADM::RVADM_ItemParent* const parent;

 private:
  qRVADM::RVADM_Group* const group;
  std::vector<qRVADM::RVADM_Item*> items;
};

}  // namespace gallery
