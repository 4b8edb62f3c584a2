#include "CutLayerDialog.h"

#include <QSignalBlocker>

#include "ADMDialogMetrics.h"
#include "ConvertSelection.h"
#include "CurrentDocument.h"
#include "CutLayerEntry.h"
#include "CutLayerList.h"
#include "LineTypeLayers.h"
#include "LineTypeSwatch.h"
#include "LoadVisibleLineTypes.h"
#include "MoveSelection.h"
#include "Placement.h"
#include "RVADM_TextPushButton.h"
#include "ReturnedCode.h"
#include "SelectedLineTypes.h"
#include "SelectionScan.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

constexpr int kIcon = 16100;
constexpr int kWidth = 240;
constexpr int kHeight = 248;
constexpr int kRowStep = 21;
constexpr int kRightMargin = 12;  // of the buttons

constexpr char kSwatchGroup[] = "Cut Line Types";

constexpr const char* kCreateOneText = TextKey("Create Line Type Layer");
constexpr const char* kCreateSeveralText = TextKey("Create Line Type Layers");

}  // namespace

CutLayerDialog::CutLayerDialog() {
  Create(TextKey("Create Line Type Layers"), kResizablePanel, false, kIcon);
  SetMinimumWidth(kWidth);
  SetMaximumWidth(kWidth);
  SetMinimumHeight(kHeight);
  SetVerticalStep(kRowStep);
}

CutLayerDialog::~CutLayerDialog() = default;

void CutLayerDialog::CreateItems() {
  OnCreateItems();
  list = new CutLayerList(this);
  createButton = new RVADM_TextPushButton(this, kCreateOneText);
  moveButton = new RVADM_TextPushButton(this, TextKey("Move Selection to Line Type Layers"));
  createButton->SetVisible(true);
  moveButton->SetVisible(false);
  SetEnabled(false);
  SetSize(kWidth, kHeight);
}

void CutLayerDialog::InitItems() {
  RVADM_NonModalDialog::InitItems();
  FillList();
}

void CutLayerDialog::FillList() {
  if (list == nullptr) return;
  list->Clear();
  std::vector<LineType> types;
  if (!LoadVisibleLineTypes(types)) return;
  for (const LineType& type : types) new CutLayerEntry(list, type);
}

void CutLayerDialog::LayoutItems() {
  ADMRect room;
  GetLocalRect(&room);
  AlignItem(list, kAlignBase | kAlignTop | kAlignLeft);
  for (RVADM_TextPushButton* button : {createButton, moveButton}) {
    AlignItem(button, kAlignBase | kAlignBottom | kAlignLeft);
  }
  list->SetRight(room.right);
  createButton->SetRight(list->GetRight() - kRightMargin);
  moveButton->SetRight(createButton->GetRight());
  list->SetBottom(createButton->GetTop() - VerticalGap(GetMetrics(), kTextPushButtonKind, kListBoxKind));
}

// --- following the selection ---

void CutLayerDialog::SyncWithSelection() {
  if (list == nullptr) return;
  std::set<std::string> names;
  SelectedLineTypes(names);
  SelectRows(names);
  createButton->SetVisible(names.empty());
  moveButton->SetVisible(!names.empty());
  const bool anyRow = CurrentEntry() != nullptr;
  EnableButtons(anyRow);
  if (!anyRow) ShowCreateText(0);
}

void CutLayerDialog::SelectRows(const std::set<std::string>& names) {
  const QSignalBlocker quiet(list);
  list->ClearSelection();
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  if (names.empty()) return;
  for (int row = 0; row < list->GetEntryCount(); ++row) {
    auto* entry = dynamic_cast<CutLayerEntry*>(list->GetEntry(row));
    if (entry != nullptr && names.count(entry->GetName()) > 0) entry->Select(true);
  }
  list->setSelectionMode(QAbstractItemView::SingleSelection);
}

void CutLayerDialog::EnableButtons(bool enabled) {
  createButton->SetEnabled(enabled);
  moveButton->SetEnabled(enabled);
}

void CutLayerDialog::ShowCreateText(int selectedRows) {
  createButton->SetText(selectedRows > 1 ? kCreateSeveralText : kCreateOneText, true, false);
}

void CutLayerDialog::OnWindowEvent(int event) {
  RVADM_NonModalDialog::OnWindowEvent(event);
  if (event != kPanelShown) return;
  SetEnabled(HasDocument());
  SyncWithSelection();
}

// --- what the user does ---

void CutLayerDialog::OnItemNotify(RVADM_Item* item) {
  if (item == list) {
    OnRowsSelected();
  } else if (item == createButton) {
    CreateLineTypeLayers(SelectedNames());
  } else if (item == moveButton) {
    const std::vector<std::string> names = SelectedNames();
    MoveSelection({names.begin(), names.end()});
  }
}

void CutLayerDialog::OnRowsSelected() {
  const int count = list->GetSelectedCount();
  EnableButtons(count > 0);
  if (count > 0 && HasSelectedArt()) {
    ConvertToCurrentRow();
  } else {
    ShowCreateText(count);
  }
}

// The row's own record goes on naming the definition, for other documents.
void CutLayerDialog::ConvertToCurrentRow() {
  const CutLayerEntry* entry = CurrentEntry();
  if (entry == nullptr) return;
  LineType type;
  ReturnedCode([&type, entry] {
    type = entry->GetLineType();
    EnsureLineTypeSwatch(type, kSwatchGroup);
    return kNoErr;
  });
  ConvertSelection(type);
}

CutLayerEntry* CutLayerDialog::CurrentEntry() const {
  return dynamic_cast<CutLayerEntry*>(list->GetActiveEntry());
}

std::vector<std::string> CutLayerDialog::SelectedNames() const {
  std::vector<std::string> names;
  list->GetSelectedCount();  // brings a selection about that is still to come
  for (QListWidgetItem* item : list->selectedItems()) {
    if (const auto* entry = dynamic_cast<CutLayerEntry*>(item)) names.push_back(entry->GetName());
  }
  return names;
}

}  // namespace Vandrell::Corvane
