// One row of a drop-down list.
#pragma once

#include <optional>
#include <string>

#include "RVADM_ListEntryBase.h"

namespace qRVADM {

class RVADM_DropDownList;

// Made with `new` and owned by its list, which deletes it when it is cleared or goes; it may be deleted
// before. What the dialog does to a row notifies nobody. Without its row, which only Qt's own operations on
// the list take from it, an entry does nothing.
class RVADM_ComboEntry : public RVADM_ListEntryBase {
 public:
  RVADM_ComboEntry(RVADM_DropDownList* list, const char* text, bool localize);  // the last row of the list
  ~RVADM_ComboEntry() override;

  void Notify(int code) override;
  void SetText(const char* text, bool localize);
  // `current`: as shown; else what SetText was last given, untranslated. At most `size` bytes with the
  // terminator, never half a character.
  void GetText(char* buffer, int size, bool current) const;
  void Select(bool selected);  // false: no row of the list is selected
  // The icon of a resource in front of the text; below 0 the room of one; 0 none.
  void SetPicture(int number);

 private:
  int Row() const;  // -1 if it has gone; never kept: rows shift

  std::optional<std::string> rawText;  // before localisation
  RVADM_DropDownList* list;            // not owned
};

}  // namespace qRVADM
