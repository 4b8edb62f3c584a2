// One row of a list box.
#pragma once

#include <QListWidgetItem>
#include <optional>
#include <string>

#include "ADMTracker.h"
#include "RVADM_ListEntryBase.h"

namespace qRVADM {

class IADMDrawer;
class RVADM_ListBox;

// Made with `new` and owned by its list, which deletes it when it is cleared or goes; it may be deleted
// before, at any time. What the dialog does to a row notifies nobody.
class RVADM_ListEntry : public RVADM_ListEntryBase, public QListWidgetItem {
 public:
  // The last row of the list. Without text if `text` is null.
  RVADM_ListEntry(RVADM_ListBox* list, const char* text, bool localize);
  RVADM_ListEntry(const RVADM_ListEntry&) = delete;
  RVADM_ListEntry& operator=(const RVADM_ListEntry&) = delete;
  ~RVADM_ListEntry() override;

  void Notify(int code) override;
  // Draws the row: coordinates are the row's, the drawer's bounds all of it.
  virtual void Draw(IADMDrawer& drawer);
  // Sees presses, releases, double clicks and tool tips (kToolTipAction) at the row before the list does. An
  // event that the tracker is set handled for ends here. Its position is in pixels of the row. The row may
  // be deleted, and the result does not matter.
  virtual bool Track(ADMTracker& tracker);

  void SetText(const char* text, bool localize);
  // `current`: as shown; else what SetText was last given, untranslated, or an empty text. At most `size`
  // bytes with the terminator, never half a character.
  void GetText(char* buffer, int size, bool current) const;
  void SetCheckable();  // a box is there from the first SetChecked on
  void SetChecked(bool checked);
  bool IsChecked() const;
  void Select(bool selected);  // a selected row becomes the current one too

  using RVADM_ListEntryBase::data;

 private:
  std::optional<std::string> rawText;  // before localisation
  RVADM_ListBox* list;                 // not owned
};

}  // namespace qRVADM
