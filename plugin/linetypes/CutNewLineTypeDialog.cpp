#include "CutNewLineTypeDialog.h"

#include "Alerts.h"
#include "ColorToRGBColor.h"
#include "FontKinds.h"
#include "LineType.h"
#include "LineTypeName.h"
#include "RVADM_Label.h"
#include "RVADM_RGBColorPatch.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

constexpr int kAccepted = 1;
constexpr int kCancelled = 0;
constexpr int kLabelGap = 10;                 // pixels between a label and what it names
constexpr std::size_t kNameBufferSize = 256;  // bytes, with the closing NUL
constexpr double kFullComponent = 65535;
constexpr AIRGBColor kNewColor{65535, 0, 0};
constexpr const char* kNewName = "Custom";  // a name, and so not translated

}  // namespace

CutNewLineTypeDialog::CutNewLineTypeDialog(LineType* record, std::function<bool(const std::string&)> isTaken)
    : RVADM_ModalDialog(false), lineType(record), nameExists(std::move(isTaken)) {
  Run(TextKey("New Custom Line Type"), true);
}

AIRGBColor CutNewLineTypeDialog::FirstColor() const {
  AIRGBColor color = kNewColor;
  if (lineType->name.empty()) return color;
  if (lineType->isCustomDataModel) {
    CustomColorToRGBColor(lineType->customColor, color);
  } else {
    ColorToRGBColor(lineType->color, color, false);
  }
  return color;
}

void CutNewLineTypeDialog::CreateItems() {
  RVADM_ModalDialog::CreateItems();
  const std::string name = lineType->name.empty() ? kNewName : lineType->name.as_UTF8();
  nameLabel = new RVADM_Label(this, TextKey("Line Type Name:"), true);
  nameEdit = new RVADM_TextEdit(this, name.c_str(), false, false);
  colorLabel = new RVADM_Label(this, TextKey("Color:"), true);
  colorPatch = new RVADM_RGBColorPatch(this, FirstColor());
  hintLabel = new RVADM_Label(this, TextKey("Click the color patch to change"), true);
  okButton = new RVADM_TextPushButton(this, TextKey("OK"));
  cancelButton = new RVADM_TextPushButton(this, TextKey("Cancel"));
  SetDefaultButton(okButton);
  SetCancelButton(cancelButton);
  nameEdit->setAccessibleName(nameLabel->GetTextInt());
  nameEdit->selectAll();  // most users will not keep it
  colorPatch->setAccessibleName(colorLabel->GetTextInt());
}

void CutNewLineTypeDialog::LayoutItems() {
  AlignItem(nameLabel, kAlignBase | kAlignLeft | kAlignTop);
  nameLabel->PlaceRightOf(nameEdit, kAlignBase | kCenterV, kLabelGap);
  nameEdit->PlaceBelow(colorPatch, kAlignBase | kAlignLeft, kDefaultGap);
  colorPatch->PlaceLeftOf(colorLabel, kAlignBase | kCenterV, kLabelGap);
  colorPatch->SetHeight(nameEdit->GetHeight());
  colorPatch->SetWidth(colorPatch->GetHeight() * 3 / 2);
  colorPatch->MoveTo(1, 0, true);
  colorPatch->PlaceBelow(hintLabel, kAlignBase | kAlignLeft, kDefaultGap);
  hintLabel->SetFontKind(kPaletteFont);
  LayoutButtons();
}

void CutNewLineTypeDialog::LayoutButtons() {
  hintLabel->PlaceBelow(okButton, kAlignBase, kDefaultGap);
  okButton->SetLeft(hintLabel->GetRight() - okButton->GetWidth());
  okButton->PlaceLeftOf(cancelButton, kAlignBase | kCenterV, kDefaultGap);
  nameEdit->SetRight(okButton->GetRight());
  okButton->FitDialogToItem(kAlignBase | kStretchRight | kStretchBottom);
}

void CutNewLineTypeDialog::OnItemNotify(RVADM_Item* item) {
  if (item == okButton) Accept();
  if (item == cancelButton) EndDialog(kCancelled, true);
}

void CutNewLineTypeDialog::Accept() {
  char text[kNameBufferSize] = "";
  nameEdit->GetText(text, kNameBufferSize, true);
  const ai::UnicodeString name{std::string_view(text)};
  if (!IsGoodName(name)) return;
  WriteRecord(name);
  EndDialog(kAccepted, false);
}

bool CutNewLineTypeDialog::IsGoodName(const ai::UnicodeString& name) const {
  if (name.empty()) {
    MessageAlert("Please specify a name for the new line type.");
    return false;
  }
  if (IsLineTypeNameTooLong(name)) {
    MessageAlert("The name of your new line type can not be longer than 31 characters.");
    return false;
  }
  if (name != lineType->name && nameExists(name.as_UTF8())) {
    MessageAlert("The name of your new line type already exists, please specify another one.");
    return false;
  }
  return true;
}

void CutNewLineTypeDialog::WriteRecord(const ai::UnicodeString& name) {
  const AIRGBColor& color = colorPatch->GetColor();
  lineType->name = name;
  lineType->isCustomDataModel = true;
  lineType->customColor = AICustomColor();
  lineType->customColor.kind = kCustomThreeColor;
  lineType->customColor.c.rgb = {color.red / kFullComponent, color.green / kFullComponent,
                                 color.blue / kFullComponent};
  lineType->customColor.flag = kCustomSpotColor;
}

}  // namespace Vandrell::Corvane
