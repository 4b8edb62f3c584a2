// Which line types the palette lists, and the user's own line types.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "LineTypeGroup.h"
#include "RVADM_ModalDialog.h"

namespace qRVADM {
class RVADM_Frame;
class RVADM_Label;
class RVADM_ListBox;
class RVADM_ListEntry;
class RVADM_PicturePushButton;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace Vandrell::Corvane {

class Group_ListBox;
class TypeLayerEntry;

// All changes are the dialog's own until OK stores the ticks of all groups in the preferences and rewrites
// the custom file. A custom file that was not read is kept beside the new one. If the standard file cannot be
// read the lists stay empty, the custom file is not read either, and OK stores nothing.
class CutPreferencesDialog final : public qRVADM::RVADM_ModalDialog {
 public:
  // Runs the dialog and returns when it has closed.
  CutPreferencesDialog();

  bool IsCancelled() const { return cancelled; }

  // For the lists of the dialog.
  void LayoutItems() override;
  void ShowGroup(const std::string& name);
  bool IsCustomGroupSelected() const;
  void EditLineType(const std::string& name);  // of the user's own, by UTF-8 name

 protected:
  void CreateItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  void CreateButtons();
  bool LoadGroups();
  void AddGroup(const LineTypeGroup& group);
  void ShowFirstGroup();
  const std::vector<LineType>* TypesOf(const std::string& name) const;  // null if there is no such group
  void FillRows(const std::string& name);
  void StoreTicks();
  void LayoutLists();
  qRVADM::RVADM_Item* LayoutCustomButtons();  // the lowest item so far
  void NewLineType();
  void DeleteLineType();
  std::string NameToDelete() const;
  bool LineTypeNameExists(const std::string& name) const;  // among the user's own
  void StorePreferences();

  bool cancelled = false;
  qRVADM::RVADM_Label* groupsLabel = nullptr;
  qRVADM::RVADM_Label* typesLabel = nullptr;
  Group_ListBox* groupList = nullptr;
  qRVADM::RVADM_ListBox* typeList = nullptr;
  qRVADM::RVADM_TextPushButton* okButton = nullptr;
  qRVADM::RVADM_TextPushButton* cancelButton = nullptr;
  qRVADM::RVADM_PicturePushButton* newButton = nullptr;
  qRVADM::RVADM_PicturePushButton* deleteButton = nullptr;
  qRVADM::RVADM_Frame* separator = nullptr;
  std::string currentGroup;                            // on show
  std::vector<qRVADM::RVADM_ListEntry*> groupEntries;  // rows belong to their lists
  std::vector<TypeLayerEntry*> typeEntries;  // as many as any group needed so far, the spare ones hidden
  std::vector<LineTypeGroup> groups;         // of the standard file
  LineTypeGroup customGroup;
  bool customWasRead = false;                                  // the custom file
  std::map<std::string, std::vector<std::string>> shownNames;  // the ticks, by group
};

}  // namespace Vandrell::Corvane
