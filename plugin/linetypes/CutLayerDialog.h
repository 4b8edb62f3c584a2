// The palette "Create Line Type Layers".
#pragma once

#include <set>
#include <string>
#include <vector>

#include "RVADM_NonModalDialog.h"

namespace qRVADM {
class RVADM_TextPushButton;
}

namespace Vandrell::Corvane {

class CutLayerEntry;
class CutLayerList;

// Lists the line types that the user chose to see. It has two faces. While the selection holds no art of a
// line type, rows are selected to make their layers; else the rows of the selected art's line types are, and
// the art can be moved to their layers. A click on a row while art is selected paints the art as that line
// type at once. It follows the selection while it is shown, and starts hidden and disabled.
class CutLayerDialog : public qRVADM::RVADM_NonModalDialog {
 public:
  CutLayerDialog();
  ~CutLayerDialog() override;

  void FillList();  // the rows anew, from the definition files and the preferences; none on a failure
  void SyncWithSelection();  // rows and buttons as the selected art asks for

  void CreateItems() override;
  void InitItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;
  void OnWindowEvent(int event) override;

 private:
  void ShowCreateText(int selectedRows);
  void EnableButtons(bool enabled);
  void SelectRows(const std::set<std::string>& names);
  CutLayerEntry* CurrentEntry() const;             // null if no row is selected
  std::vector<std::string> SelectedNames() const;  // in the order in which the user selected the rows
  void OnRowsSelected();
  void ConvertToCurrentRow();

  CutLayerList* list = nullptr;  // null if the host refused the panel, and so the buttons
  qRVADM::RVADM_TextPushButton* createButton = nullptr;
  qRVADM::RVADM_TextPushButton* moveButton = nullptr;  // in the same place; one of them is visible
};

}  // namespace Vandrell::Corvane
