#include "StateTable.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <algorithm>

#include "IconIds.h"
#include "Localize.h"
#include "PaintSample.h"
#include "RVADM_FillStrokeItem.h"
#include "RVADM_Label.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_RGBColorPatch.h"
#include "RVADM_Radio.h"
#include "RVADM_RadioGroup.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr const char* kStateNames[kStateCount] = {TextKey("Normal"), TextKey("Focused"), TextKey("Pressed"),
                                                  TextKey("Disabled")};
constexpr int kColumnGap = 14;
constexpr int kRowGap = 6;
constexpr int kFieldWidth = 90;
constexpr int kSliderWidth = 90;
constexpr int kPatchSide = 21;
constexpr AIRGBColor kGreen = {0x2020, 0xa0a0, 0x6060};

constexpr bool kTakesFocus = true;
constexpr bool kCanBePressed = true;

RVADM_Item* MakeTextButton(RVADM_ItemParent* parent) {
  return new RVADM_TextPushButton(parent, TextKey("Cut"));
}
RVADM_Item* MakePictureButton(RVADM_ItemParent* parent) {
  return new RVADM_PicturePushButton(parent, kStarIcon, 0);
}
RVADM_Item* MakeSelectedPictureButton(RVADM_ItemParent* parent) {
  return new RVADM_PicturePushButton(parent, kStarIcon, kSelectedStarIcon);
}
RVADM_Item* MakeFlatButton(RVADM_ItemParent* parent) {
  auto* const button = new RVADM_PicturePushButton(parent, kStarIcon, kSelectedStarIcon);
  button->SetFlat(true);
  return button;
}
// Radios by themselves: any of them may be on.
RVADM_Radio* MakeRadio(RVADM_ItemParent* parent, bool on) {
  auto* const group = new RVADM_RadioGroup(parent);
  group->setExclusive(false);
  auto* const radio = new RVADM_Radio(group, on ? TextKey("On") : TextKey("Off"));
  radio->SetChecked(on);
  return radio;
}
RVADM_Item* MakeRadioOff(RVADM_ItemParent* parent) {
  return MakeRadio(parent, false);
}
RVADM_Item* MakeRadioOn(RVADM_ItemParent* parent) {
  return MakeRadio(parent, true);
}
RVADM_Item* MakeField(RVADM_ItemParent* parent, bool readOnly) {
  auto* const field = new RVADM_TextEdit(parent, TextKey("Kiss Cut"), true, readOnly);
  field->SetWidth(kFieldWidth);
  return field;
}
RVADM_Item* MakeTextField(RVADM_ItemParent* parent) {
  return MakeField(parent, false);
}
RVADM_Item* MakeReadOnlyField(RVADM_ItemParent* parent) {
  return MakeField(parent, true);
}
RVADM_Item* MakeSlider(RVADM_ItemParent* parent) {
  auto* const slider = new RVADM_Slider(parent, true, 0, 1, 0.01);
  slider->SetWidth(kSliderWidth);
  slider->SetValue(0.4);
  return slider;
}
RVADM_Item* MakeLabel(RVADM_ItemParent* parent) {
  return new RVADM_Label(parent, TextKey("Click here"), true);
}
RVADM_Item* MakePictureLabel(RVADM_ItemParent* parent) {
  return new RVADM_PictureLabel(parent, kStarIcon);
}
RVADM_Item* MakeFillStroke(RVADM_ItemParent* parent) {
  return new RVADM_FillStrokeItem(parent);
}
RVADM_Item* MakePatch(RVADM_ItemParent* parent) {
  auto* const patch = new RVADM_RGBColorPatch(parent, kGreen);
  patch->SetSize(kPatchSide, kPatchSide);
  return patch;
}
RVADM_Item* MakePaintSample(RVADM_ItemParent* parent) {
  return new PaintSample(parent);
}

int WidthOf(RVADM_Item* item) {
  return item == nullptr ? 0 : item->GetWidth();
}
int HeightOf(RVADM_Item* item) {
  return item == nullptr ? 0 : item->GetHeight();
}

}  // namespace

struct StateTable::Kind {
  const char* name;
  RVADM_Item* (*make)(RVADM_ItemParent* parent);
  bool takesFocus;
  bool canBePressed;
};

StateTable::StateTable(RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Items and Their States")) {
  const Kind kinds[] = {
      {TextKey("Text button"), MakeTextButton, kTakesFocus, kCanBePressed},
      {TextKey("Picture button"), MakePictureButton, kTakesFocus, kCanBePressed},
      {TextKey("Selected picture"), MakeSelectedPictureButton, kTakesFocus, kCanBePressed},
      {TextKey("Flat picture button"), MakeFlatButton, kTakesFocus, kCanBePressed},
      {TextKey("Radio"), MakeRadioOff, kTakesFocus, kCanBePressed},
      {TextKey("Radio that is on"), MakeRadioOn, kTakesFocus, kCanBePressed},
      {TextKey("Text field"), MakeTextField, kTakesFocus, !kCanBePressed},
      {TextKey("Read-only field"), MakeReadOnlyField, kTakesFocus, !kCanBePressed},
      {TextKey("Slider"), MakeSlider, kTakesFocus, kCanBePressed},
      {TextKey("Label"), MakeLabel, !kTakesFocus, !kCanBePressed},
      {TextKey("Picture label"), MakePictureLabel, !kTakesFocus, !kCanBePressed},
      {TextKey("Fill and stroke"), MakeFillStroke, !kTakesFocus, !kCanBePressed},
      {TextKey("Color patch"), MakePatch, !kTakesFocus, !kCanBePressed},
      {TextKey("Custom item"), MakePaintSample, !kTakesFocus, !kCanBePressed},
  };
  for (std::size_t state = 0; state < kStateCount; ++state) {
    heads[state] = Make<RVADM_Label>(kStateNames[state], true);
  }
  for (const Kind& kind : kinds) MakeRow(kind);
}

void StateTable::MakeRow(const Kind& kind) {
  Row row{kind.name, Make<RVADM_Label>(kind.name, true), {}};
  for (const State state : {kNormal, kFocused, kPressed, kDisabled}) {
    if (state == kFocused && !kind.takesFocus) continue;
    if (state == kPressed && !kind.canBePressed) continue;
    row.items[state] = Adopt(kind.make(parent));
  }
  row.items[kNormal]->SetTip(TextKey("A tip tells what the item is for."), true, false);
  rows.push_back(row);
}

void StateTable::InitItems() {
  for (const Row& row : rows) {
    row.items[kDisabled]->SetEnabled(false);
    if (row.items[kPressed] == nullptr) continue;
    QWidget* const widget = row.items[kPressed]->GetWidget();
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) button->setDown(true);
    if (auto* const slider = qobject_cast<QAbstractSlider*>(widget)) slider->setSliderDown(true);
  }
  ShareFocus();
  TakeFocus();
}

void StateTable::TakeFocus() {
  focusedField->SetFocus(true);
}

// Items show the focus as the keyboard brings it.
void StateTable::ShareFocus() {
  const auto field = std::find_if(rows.begin(), rows.end(), [](const Row& row) {
    return dynamic_cast<RVADM_TextEdit*>(row.items[kFocused]) != nullptr;
  });
  QWidget* const focused = field->items[kFocused]->GetWidget();
  QObject::connect(qApp, &QApplication::focusChanged, &focusWatch, [this, focused](QWidget*, QWidget* now) {
    if (now == focused) focused->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    for (const Row& row : rows) {
      if (row.items[kFocused] != nullptr) row.items[kFocused]->Invalidate();
    }
  });
  for (const Row& row : rows) {
    if (row.items[kFocused] == nullptr || row.items[kFocused]->GetWidget() == focused) continue;
    row.items[kFocused]->GetWidget()->setFocusProxy(focused);
  }
  focusedField = field->items[kFocused];
}

void StateTable::LayoutItems() {
  const ADMRect inner = GetInnerRect();
  const std::vector<int> lefts = ColumnLefts(inner.left);
  for (std::size_t state = 0; state < kStateCount; ++state) {
    heads[state]->MoveTo(lefts[state], inner.top, false);
  }
  int top = heads[kNormal]->GetBottom() + kRowGap;
  for (const Row& row : rows) top = LayoutRow(row, inner.left, top, lefts) + kRowGap;
  FitGroup();
}

std::vector<int> StateTable::ColumnLefts(int left) const {
  std::vector<int> lefts;
  int widest = 0;
  for (const Row& row : rows) widest = std::max(widest, WidthOf(row.label));
  for (std::size_t state = 0; state < kStateCount; ++state) {
    left += widest + kColumnGap;
    lefts.push_back(left);
    widest = WidthOf(heads[state]);
    for (const Row& row : rows) widest = std::max(widest, WidthOf(row.items[state]));
  }
  return lefts;
}

int StateTable::LayoutRow(const Row& row, int left, int top, const std::vector<int>& lefts) {
  int height = HeightOf(row.label);
  for (RVADM_Item* const item : row.items) height = std::max(height, HeightOf(item));
  const ADMRect band = {left, top, left, top + height};
  row.label->MoveTo(left, top, false);
  row.label->AlignToRect(band, kCenterV);
  for (std::size_t state = 0; state < kStateCount; ++state) {
    if (row.items[state] == nullptr) continue;
    row.items[state]->MoveTo(lefts[state], top, false);
    row.items[state]->AlignToRect(band, kCenterV);
  }
  return band.bottom;
}

bool StateTable::OnItemNotify(RVADM_Item* item) {
  for (const Row& row : rows) {
    for (std::size_t state = 0; state < kStateCount; ++state) {
      if (row.items[state] == nullptr || row.items[state] != item) continue;
      lastNotice = std::string(Localize(row.name)) + ", ";
      lastNotice += Localize(kStateNames[state]);
      return true;
    }
  }
  return false;
}

}  // namespace gallery
