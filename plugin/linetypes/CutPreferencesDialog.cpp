#include "CutPreferencesDialog.h"

#include <algorithm>
#include <functional>
#include <set>

#include "Alerts.h"
#include "CutNewLineTypeDialog.h"
#include "Group_ListBox.h"
#include "LoadCustomLineTypes.h"
#include "LoadStandardLineTypes.h"
#include "Localize.h"
#include "RVADM_Frame.h"
#include "RVADM_Label.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_TextPushButton.h"
#include "RowText.h"
#include "ShownNames.h"
#include "TextKey.h"
#include "TypeLayerEntry.h"
#include "WriteCustomLineTypes.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

constexpr int kAccepted = 1;
constexpr int kCancelled = 0;
constexpr int kNewIcon = 16041;
constexpr int kDeleteIcon = 16055;
constexpr int kGroupRowHeight = 30;  // pixels, as the other measures
constexpr int kGroupListWidth = 200;
constexpr int kTypeListWidth = 250;
constexpr int kListHeight = 200;
constexpr int kSeparatorWidth = kGroupListWidth + kTypeListWidth;
constexpr int kLabelGap = 2;

// A button without a text says it in its tip, and to screen readers.
void SayWhatItDoes(RVADM_PicturePushButton& button, const char* text) {
  button.SetTip(text, true, false);
  button.setAccessibleName(QString::fromUtf8(Localize(text)));
}

std::vector<std::string> NamesOf(const std::vector<LineType>& types) {
  std::vector<std::string> names;
  for (const LineType& type : types) names.push_back(type.name.as_UTF8());
  return names;
}

// The texts of a definition file's faults have nothing to fill in.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
void TellFault(const std::string& text) {
  ErrorAlert(text.c_str());
}
#pragma GCC diagnostic pop

}  // namespace

CutPreferencesDialog::CutPreferencesDialog() : RVADM_ModalDialog(false) {
  Run(TextKey("Create Line Type Layers Preferences"), true);
}

// --- the items ---

void CutPreferencesDialog::CreateItems() {
  groupsLabel = new RVADM_Label(this, TextKey("Line Type Groups:"), true);
  typesLabel = new RVADM_Label(this, TextKey("Show in Create Line Type Layers palette:"), true);
  groupList = new Group_ListBox(this);
  groupList->SetRowHeight(kGroupRowHeight);
  groupList->setAccessibleName(groupsLabel->GetTextInt());
  typeList = new RVADM_ListBox(this, false);
  typeList->setAccessibleName(typesLabel->GetTextInt());
  CreateButtons();
  if (LoadGroups()) ShowFirstGroup();
}

void CutPreferencesDialog::CreateButtons() {
  newButton = new RVADM_PicturePushButton(this, kNewIcon, 0);
  deleteButton = new RVADM_PicturePushButton(this, kDeleteIcon, 0);
  SayWhatItDoes(*newButton, TextKey("New Custom Line Type"));
  SayWhatItDoes(*deleteButton, TextKey("Delete Custom Line Type"));
  separator = new RVADM_Frame(this, true);
  okButton = new RVADM_TextPushButton(this, TextKey("OK"));
  cancelButton = new RVADM_TextPushButton(this, TextKey("Cancel"));
  SetDefaultButton(okButton);
  SetCancelButton(cancelButton);
}

bool CutPreferencesDialog::LoadGroups() {
  std::string errorText;
  if (!LoadStandardLineTypes(groups, currentGroup, errorText)) {
    groups.clear();
    TellFault(errorText);
    return false;
  }
  customWasRead = LoadCustomLineTypes(customGroup, false);
  for (const LineTypeGroup& group : groups) AddGroup(group);
  AddGroup(customGroup);
  return true;
}

void CutPreferencesDialog::AddGroup(const LineTypeGroup& group) {
  ReadShownNames(group, shownNames[group.name]);
  groupEntries.push_back(new RVADM_ListEntry(groupList, group.name.c_str(), false));
}

void CutPreferencesDialog::ShowFirstGroup() {
  const auto row =
      std::find_if(groupEntries.begin(), groupEntries.end(),
                   [this](const RVADM_ListEntry* entry) { return RowText(*entry) == currentGroup; });
  if (row == groupEntries.end())
    return currentGroup.clear();  // nothing is on show until the user selects a group
  (*row)->Select(true);
  FillRows(currentGroup);
}

// --- the layout ---

void CutPreferencesDialog::LayoutItems() {
  LayoutLists();
  RVADM_Item* const anchor = LayoutCustomButtons();
  anchor->PlaceBelow(separator, kAlignBase, kDefaultGap);
  separator->SetLeft(groupList->GetLeft());
  separator->SetWidth(kSeparatorWidth);
  separator->PlaceBelow(okButton, kAlignBase, kDefaultGap);
  okButton->SetLeft(typeList->GetRight() - okButton->GetWidth());
  okButton->PlaceLeftOf(cancelButton, kAlignBase | kCenterV, kDefaultGap);
  okButton->FitDialogToItem(kAlignBase | kStretchRight | kStretchBottom);
}

void CutPreferencesDialog::LayoutLists() {
  AlignItem(groupsLabel, kAlignBase | kAlignLeft | kAlignTop);
  groupsLabel->SetWidth(kGroupListWidth);
  groupsLabel->PlaceRightOf(typesLabel, kAlignBase | kCenterV, kDefaultGap);
  groupsLabel->PlaceBelow(groupList, kAlignBase | kAlignLeft, kLabelGap);
  groupList->SetWidth(kGroupListWidth);
  typesLabel->PlaceBelow(typeList, kAlignBase | kAlignLeft, kLabelGap);
  typeList->SetWidth(kTypeListWidth);
}

RVADM_Item* CutPreferencesDialog::LayoutCustomButtons() {
  const bool isCustom = IsCustomGroupSelected();
  const int height = isCustom ? kListHeight - newButton->GetHeight() : kListHeight;
  groupList->SetHeight(height);
  typeList->SetHeight(height);
  newButton->SetVisible(isCustom);
  deleteButton->SetVisible(isCustom);
  if (!isCustom) {
    groupList->SetBottom(typeList->GetBottom());
    return groupList;
  }
  typeList->PlaceBelow(newButton, kAlignBase | kAlignLeft, 0);
  newButton->PlaceRightOf(deleteButton, kAlignBase | kCenterV, 0);
  return deleteButton;
}

// --- the rows ---

bool CutPreferencesDialog::IsCustomGroupSelected() const {
  return groupList->SelectedName() == kCustomGroup;
}

// The rows of the user's own line types change under the dialog's hands: their ticks are stored even if the
// group stays.
void CutPreferencesDialog::ShowGroup(const std::string& name) {
  if (name != currentGroup || name == kCustomGroup) StoreTicks();
  FillRows(name);
}

const std::vector<LineType>* CutPreferencesDialog::TypesOf(const std::string& name) const {
  if (name == kCustomGroup) return &customGroup.types;
  const auto group = std::find_if(groups.begin(), groups.end(),
                                  [&name](const LineTypeGroup& candidate) { return candidate.name == name; });
  return group == groups.end() ? nullptr : &group->types;
}

// The names come first: where the host refuses one, the rows stay those of the group on show.
void CutPreferencesDialog::FillRows(const std::string& name) {
  const std::vector<LineType>* const types = TypesOf(name);
  if (types == nullptr) return;
  const std::vector<std::string> names = NamesOf(*types);
  const std::set<std::string> shown(shownNames[name].begin(), shownNames[name].end());
  deleteButton->SetEnabled(!types->empty());
  while (typeEntries.size() < types->size()) typeEntries.push_back(new TypeLayerEntry(typeList, this));
  for (std::size_t i = 0; i < typeEntries.size(); ++i) {
    const bool isUsed = i < types->size();
    typeEntries[i]->setHidden(!isUsed);
    typeEntries[i]->SetChecked(isUsed && shown.count(names[i]) > 0);
    if (isUsed) typeEntries[i]->SetText(names[i].c_str(), name == kStandardGroup);
  }
  currentGroup = name;
}

void CutPreferencesDialog::StoreTicks() {
  const auto ticks = shownNames.find(currentGroup);
  if (ticks == shownNames.end()) return;  // no group is on show
  ticks->second.clear();
  for (const TypeLayerEntry* entry : typeEntries) {
    if (entry->IsChecked()) ticks->second.push_back(RowText(*entry));
  }
}

// --- the user's own line types ---

bool CutPreferencesDialog::LineTypeNameExists(const std::string& name) const {
  return std::any_of(customGroup.types.begin(), customGroup.types.end(),
                     [&name](const LineType& type) { return type.name.as_UTF8() == name; });
}

// It comes ticked, in the row behind the last one.
void CutPreferencesDialog::NewLineType() {
  using namespace std::placeholders;
  LineType type;
  const CutNewLineTypeDialog dialog(&type, std::bind(&CutPreferencesDialog::LineTypeNameExists, this, _1));
  if (type.name.empty()) return;
  const std::string name = type.name.as_UTF8();
  const std::size_t row = customGroup.types.size();
  customGroup.types.push_back(std::move(type));
  if (typeEntries.size() <= row) typeEntries.push_back(new TypeLayerEntry(typeList, this));
  typeEntries[row]->SetText(name.c_str(), false);
  typeEntries[row]->SetChecked(true);
  ShowGroup(kCustomGroup);
}

// The tick of the row goes along with it.
void CutPreferencesDialog::EditLineType(const std::string& name) {
  using namespace std::placeholders;
  const auto type =
      std::find_if(customGroup.types.begin(), customGroup.types.end(),
                   [&name](const LineType& candidate) { return candidate.name.as_UTF8() == name; });
  if (type == customGroup.types.end()) return;
  const CutNewLineTypeDialog dialog(&*type, std::bind(&CutPreferencesDialog::LineTypeNameExists, this, _1));
  typeEntries[static_cast<std::size_t>(type - customGroup.types.begin())]->SetText(
      type->name.as_UTF8().c_str(), false);
  ShowGroup(kCustomGroup);
}

// The selected one, else the last one.
std::string CutPreferencesDialog::NameToDelete() const {
  const std::vector<LineType>& types = customGroup.types;
  RVADM_ListEntry* const selected = typeList->GetSelectedEntry(0);
  const int row = selected == nullptr ? -1 : typeList->row(selected);
  const bool isType = row >= 0 && static_cast<std::size_t>(row) < types.size();
  return (isType ? types[static_cast<std::size_t>(row)] : types.back()).name.as_UTF8();
}

void CutPreferencesDialog::DeleteLineType() {
  if (customGroup.types.empty()) return;
  const std::string name = NameToDelete();
  const std::vector<std::string> names = NamesOf(customGroup.types);  // all, before any line type goes
  StoreTicks();
  std::vector<std::string>& shown = shownNames[kCustomGroup];
  shown.erase(std::remove(shown.begin(), shown.end(), name), shown.end());
  std::vector<LineType> kept;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] != name) kept.push_back(std::move(customGroup.types[i]));
  }
  customGroup.types = std::move(kept);
  FillRows(kCustomGroup);
}

// --- the answers ---

void CutPreferencesDialog::OnItemNotify(RVADM_Item* item) {
  if (item == okButton) {
    StorePreferences();
    EndDialog(kAccepted, false);
  } else if (item == cancelButton) {
    cancelled = true;
    EndDialog(kCancelled, true);
  } else if (item == newButton) {
    NewLineType();
  } else if (item == deleteButton) {
    DeleteLineType();
  }
}

// A custom file that was not read stays as it is.
void CutPreferencesDialog::StorePreferences() {
  StoreTicks();
  for (const auto& [group, names] : shownNames) WriteShownNames(group, names);
  if (!groupEntries.empty()) WriteCustomLineTypes(customGroup, customWasRead);
}

}  // namespace Vandrell::Corvane
